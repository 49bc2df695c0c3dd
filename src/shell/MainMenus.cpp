#include "shell/MainMenus.h"

#include "controls/ClickLabel.h"

namespace quillford {

namespace {

QMenu* makeMenu(QWidget& form, const QString& name, const QString& title) {
    auto* menu = new QMenu(title, &form);
    menu->setObjectName(name);
    return menu;
}

} // namespace

MainMenus::MainMenus(QWidget& form)
    : QObject(&form),
      form_(form),
      file_(makeMenu(form, QStringLiteral("mnuFile"), QStringLiteral("&File"))),
      help_(makeMenu(form, QStringLiteral("mnuHelp"), QStringLiteral("&Help"))),
      resources_(makeMenu(form, QStringLiteral("mnuResources"), QStringLiteral("&Resources"))) {
    for (QMenu* menu : {file_, help_, resources_})
        connect(static_cast<ClickLabel*>(&wordOf(*menu)), &ClickLabel::clicked, this,
                [this, menu] { open(*menu); });
    showWords();
}

QAction& MainMenus::addEntry(QMenu& menu, const QString& name, const QString& caption) {
    QAction* entry = menu.addAction(caption);
    entry->setObjectName(name);
    return *entry;
}

void MainMenus::showWords() {
    for (const QMenu* menu : {file_, help_, resources_})
        wordOf(*menu).setVisible(!menu->isEmpty());
}

void MainMenus::openFileMenu() {
    open(*file_);
}

void MainMenus::openHelpMenu() {
    open(*help_);
}

void MainMenus::open(QMenu& menu) {
    if (menu.isEmpty())
        return;
    if (&menu == file_)
        Q_EMIT fileMenuOpens();
    const QWidget& word = wordOf(menu);
    menu.popup(word.mapToGlobal(QPoint(0, word.height())));
}

QWidget& MainMenus::wordOf(const QMenu& menu) const {
    const QString name = &menu == file_   ? QStringLiteral("lblMenuFile")
                         : &menu == help_ ? QStringLiteral("lblMenuHelp")
                                          : QStringLiteral("imgResources");
    return *form_.findChild<ClickLabel*>(name);
}

} // namespace quillford
