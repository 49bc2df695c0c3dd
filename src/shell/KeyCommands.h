#pragma once

#include <QAction>
#include <QObject>
#include <QWidget>

namespace quillford {

/// The keys of the main form, seen before the field that has the focus. A modifier counts alone:
/// Ctrl+Shift+S is nobody's key.
class KeyCommands final : public QObject {
    Q_OBJECT

public:
    /// The form owns the object. Keys count while the form is the active window and no dialog
    /// stands before it.
    explicit KeyCommands(QWidget& form);

Q_SIGNALS:
    void fileMenuWanted();
    void helpMenuWanted();
    void saveWanted();
    void openWanted();
    void newWanted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool take(const QKeyEvent& event);

    QWidget& form_;
};

} // namespace quillford
