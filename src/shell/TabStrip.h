#pragma once

#include "core/rules/TabLooks.h"
#include "shell/TabPicture.h"

#include <QCursor>
#include <QList>
#include <QObject>

namespace quillford {

/// The row of tab pictures, `picTab(0)` to `picTab(9)`.
class TabStrip final : public QObject {
    Q_OBJECT

public:
    /// The pictures stand below `form`, which owns them. The first tab is the current one.
    explicit TabStrip(QWidget& form);

    void setTabLook(int tab, TabLook look);
    void setTabPointer(int tab, TabPointer pointer);

Q_SIGNALS:
    void picTab_Click(int index);

private:
    QList<TabPicture*> pictures_;
    QCursor hand_;
};

} // namespace quillford
