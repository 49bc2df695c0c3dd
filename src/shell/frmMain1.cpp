#include "shell/frmMain1.h"

#include "controls/ControlArrays.h"
#include "controls/HandCursor.h"
#include "controls/Theme.h"
#include "controls/TitleStrip.h"
#include "shell/FilingPage.h"
#include "shell/FormLooks.h"
#include "shell/HelpPane.h"
#include "shell/KeyCommands.h"
#include "shell/MainMenus.h"
#include "shell/TabWalk.h"
#include "shell/TitleRow.h"
#include "shell/WelcomePage.h"
#include "shell/WindowChrome.h"
#include "ui_frmMain1.h"

#include <QCloseEvent>
#include <QPainter>

namespace quillford {

namespace {

constexpr QRect TitleStrip(0, 0, 984, 34);
constexpr QRect MenuRow(0, 34, 984, 26);

} // namespace

frmMain1::frmMain1(const QString& appFolder, const FocusOrder& focusOrder)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint),
      focusOrder_(focusOrder) {
    Ui::frmMain1 designed;
    designed.setupUi(this);
    nameControlArrays(*this);
    setFixedSize(size());
    title_ = new TitleRow(*this);
    title_->setCaption(QStringLiteral("Quillford 3.1"));
    chrome_ = new WindowChrome(*this);
    applyTheme();
    menus_ = new MainMenus(*this);
    keys_ = new KeyCommands(*this);
    tabs_ = new TabStrip(*this);
    bar_ = new StepBar(*this);
    looks_ = std::make_unique<FormLooks>(*this, *tabs_, *bar_);
    help_ = new HelpPane(*this, appFolder);
    welcome_ = new WelcomePage(*this);
    fillFilingPage(panel(9));
    connect(keys_, &KeyCommands::fileMenuWanted, menus_, &MainMenus::openFileMenu);
    connect(keys_, &KeyCommands::helpMenuWanted, menus_, &MainMenus::openHelpMenu);
}

frmMain1::~frmMain1() = default;

void frmMain1::applyTheme() {
    theme::makeHeadings(*this, {u"lblBack", u"lblhelp", u"lblIndexOfElements"});
    for (const QStringView line : {u"lnBtnStepContainer", u"lnTab1"})
        theme::colour(*findChild<QFrame*>(line.toString()), theme::Line);
    for (const QStringView word : {u"lblMin", u"lblClose"}) {
        auto* label = findChild<QLabel*>(word.toString());
        label->setFont(theme::headingFont());
        theme::colour(*label, theme::White);
    }
    for (const QStringView word : {u"lblMenuFile", u"lblMenuHelp", u"imgResources"})
        findChild<QLabel*>(word.toString())->setFont(theme::fieldFont());
    theme::colour(*findChild<QLabel*>(QStringLiteral("imgResources")), theme::Heading);
    for (const QStringView picture : {u"imgPrint", u"imgResources"})
        findChild<QWidget*>(picture.toString())->setCursor(handCursor());
}

QWidget& frmMain1::panel(int tab) {
    return *findChild<QWidget*>(controlName(u"picContainer", tab));
}

QWidget& frmMain1::index() {
    return *findChild<QWidget*>(QStringLiteral("picIndexContainer"));
}

bool frmMain1::focusNextPrevChild(bool next) {
    // What lies under the Welcome page is enabled, but nobody sees it.
    const QWidget& reach = welcome_->page().isVisible() ? welcome_->page() : *this;
    QWidget* control = nextByTab(reach, focusOrder_, next);
    if (!control)
        return false;
    control->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void frmMain1::closeEvent(QCloseEvent* event) {
    bool refuse = false;
    Q_EMIT closing(refuse);
    event->setAccepted(!refuse);
}

void frmMain1::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::Window);
    painter.fillRect(MenuRow, theme::MenuRow);
    paintTitleStrip(painter, TitleStrip);
    paintOutline(painter, rect());
}

} // namespace quillford
