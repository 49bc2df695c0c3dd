#pragma once

#include <QWidget>

namespace quillford {

/// Puts the fixed page about filing, the labels `lblTab10(i)`, onto its panel. The page has no
/// commands of its own: what could be opened shows as text.
void fillFilingPage(QWidget& panel);

} // namespace quillford
