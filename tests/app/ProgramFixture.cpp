#include "app/ProgramFixture.h"

#include "core/wizard/FocusOrder.h"
#include "support/Files.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStandardPaths>

namespace quillford {

namespace {

/// A program of the desktop that writes down what it is called with.
void writeCommand(const QString& path, const QByteArray& script) {
    writeFile(path, "#!/bin/sh\n" + script);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

/// The number of the only one of the ten for which this holds; -1 when that is not exactly one.
template <typename Holds>
int onlyOne(const Holds& holds) {
    constexpr int Tabs = 10;
    int found = -1;
    for (int i = 0; i < Tabs; ++i)
        if (holds(i))
            found = found < 0 ? i : Tabs;
    return found < Tabs ? found : -1;
}

} // namespace

ProgramFixture::ProgramFixture() {
    writeCommand(place(u"bin/xdg-open"_s), "echo \"$1\" >> \"$HOME/opened\"\n");
    writeCommand(place(u"bin/xdg-mime"_s), "echo some\n");
}

void ProgramFixture::start(const QStringList& arguments) {
    program_.reset();
    program_ = std::make_unique<Program>();
    ASSERT_TRUE(program_->start(arguments));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form()));
}

void ProgramFixture::startWithNewProject() {
    start();
    click(u"lblRecentPatents(0)"_s);
}

TabPicture& ProgramFixture::tab(int index) {
    return control<TabPicture>(controlName(u"picTab", index));
}

QWidget& ProgramFixture::panel(int index) {
    return control(controlName(u"picContainer", index));
}

int ProgramFixture::currentTab() {
    return onlyOne([this](int index) {
        const TabLook look = tab(index).look();
        return look == TabLook::CompleteSelected || look == TabLook::IncompleteSelected;
    });
}

int ProgramFixture::enabledPanel() {
    return onlyOne([this](int index) { return panel(index).isEnabled(); });
}

void ProgramFixture::clickOn(QWidget& control) {
    auto* const face = control.findChild<QWidget*>(u"picbutton"_s);
    QTest::mouseClick(face ? face : &control, Qt::LeftButton);
}

void ProgramFixture::press(const QWidget& dialog, const QString& name) {
    auto* const pressed = dialog.findChild<QWidget*>(name);
    ASSERT_TRUE(pressed) << qPrintable(name);
    clickOn(*pressed);
}

ProgramFixture::Answer ProgramFixture::presses(const QString& button) {
    return [button](QDialog& dialog) {
        ModalUser::pressByKeys(dialog, dialog.findChild<QWidget*>(button));
    };
}

ProgramFixture::Answer ProgramFixture::ticksAndPresses(const QString& button) {
    return [button](QDialog& dialog) {
        presses(u"chkShowMsg"_s)(dialog);
        presses(button)(dialog);
    };
}

void ProgramFixture::type(const QString& name, const QString& text) {
    QWidget& field = control(name);
    field.setFocus();
    QTest::keyClicks(&field, text);
}

QString ProgramFixture::shown(const QString& name) {
    QWidget& field = control(name);
    const auto* line = qobject_cast<QLineEdit*>(&field);
    return line ? line->text() : qobject_cast<QPlainTextEdit*>(&field)->toPlainText();
}

void ProgramFixture::openFileMenu(const std::function<void()>& look) {
    click(u"lblMenuFile"_s);
    look();
    control<QMenu>(u"mnuFile"_s).hide();
}

void ProgramFixture::choose(const QString& entry) {
    openFileMenu();
    ASSERT_TRUE(menuEntry(entry).isEnabled()) << qPrintable(entry);
    menuEntry(entry).trigger();
}

void ProgramFixture::letTimerSave() {
    constexpr int TicksToSave = 6;
    auto& timer = control<QTimer>(u"tmrAutoSave"_s);
    ASSERT_TRUE(timer.isActive());
    for (int tick = 0; tick < TicksToSave; ++tick)
        QMetaObject::invokeMethod(&timer, "timeout");
}

QString ProgramFixture::drafts() const {
    const QString program = QDir(QCoreApplication::applicationDirPath()).dirName();
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + u'/' + program +
           u"/Drafts"_s;
}

QStringList ProgramFixture::draftFiles() const {
    return QDir(drafts()).entryList(QDir::Files);
}

QString ProgramFixture::sampleProject(const QString& name) {
    const QString path = place(name);
    EXPECT_TRUE(QFile::copy(QStringLiteral(QUILLFORD_SAMPLE_PROJECT), path));
    return path;
}

QStringList ProgramFixture::opened() const {
    const QString list = place(u"opened"_s);
    QFile file(list);
    if (!QTest::qWaitFor([&] { return file.size() > 0; }) || !file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace quillford
