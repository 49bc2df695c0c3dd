#pragma once

#include "editors/binding/BoundFields.h"

#include <QWidget>

namespace quillford {

/// The panel of one inventor in Section 2, `picInventors(i)`: name, address and citizenship. The
/// first inventor's panel also holds `chkSameAsContact`, and is higher by its line.
class InventorPanel final : public QWidget {
    Q_OBJECT

public:
    /// Binds the fields of the inventor with this index, from 0. `view` owns the panel.
    InventorPanel(int inventor, QWidget& view, BoundFields& bound);

    /// Shows the panel or takes it away. No key reaches a panel that is away.
    void setShown(bool on);

private:
    void closeGapOf(QWidget& box);
};

} // namespace quillford
