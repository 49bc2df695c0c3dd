#include "app/ProgramFixture.h"

#include "controls/myImageButton.h"
#include "support/Files.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace quillford {

namespace {

constexpr std::chrono::milliseconds LookInterval{2};
constexpr std::chrono::seconds Patience{10};

/// A program of the desktop that writes down what it is called with.
void writeCommand(const QString& path, const QByteArray& script) {
    writeFile(path, "#!/bin/sh\n" + script);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

ProgramFixture::ProgramFixture() {
    qputenv("HOME", home_.path().toUtf8());
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(variable, place(QString::fromLatin1(variable)).toUtf8());
    QDir(home_.path()).mkdir(u"bin"_s);
    writeCommand(place(u"bin/xdg-open"_s), "echo \"$1\" >> \"$HOME/opened\"\n");
    writeCommand(place(u"bin/xdg-mime"_s), "echo some\n");
    qputenv("PATH", place(u"bin:"_s).toUtf8() + path_);
    QObject::connect(&user_, &QTimer::timeout, [this] { answerDialogs(); });
    user_.start(LookInterval);
}

ProgramFixture::~ProgramFixture() {
    EXPECT_TRUE(expected_.empty()) << "no dialog came up: " << qPrintable(expected_.front().title);
    qputenv("PATH", path_);
}

void ProgramFixture::start(const QStringList& arguments) {
    program_ = std::make_unique<Program>();
    ASSERT_TRUE(program_->start(arguments));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form()));
}

void ProgramFixture::clickOn(QWidget& control) {
    if (auto* button = qobject_cast<myImageButton*>(&control))
        button->click();
    else
        QTest::mouseClick(&control, Qt::LeftButton);
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

void ProgramFixture::whenAsked(const QString& title, const Answer& answer) {
    expected_.push_back({title, answer});
}

void ProgramFixture::whenAsked(const QString& title, QMessageBox::StandardButton button) {
    whenAsked(title, [button](QDialog& dialog) {
        qobject_cast<QMessageBox*>(&dialog)->button(button)->click();
    });
}

void ProgramFixture::whenAskedForFile(const QString& path) {
    whenAsked({}, [path](QDialog& dialog) {
        if (path.isEmpty())
            return dialog.reject();
        dialog.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(path);
        dialog.accept();
    });
}

void ProgramFixture::answerDialogs() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible() || dialog->objectName() == u"frmSplash")
        return;
    if (dialog == answered_ && !patience_.hasExpired())
        return;
    patience_ = QDeadlineTimer(Patience);
    answered_ = dialog;
    const bool isFileDialog = qobject_cast<QFileDialog*>(dialog);
    if (expected_.empty() ||
        (isFileDialog ? QString() : dialog->windowTitle()) != expected_.front().title) {
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        ADD_FAILURE() << "unexpected: " << qPrintable(dialog->windowTitle()) << ": "
                      << qPrintable(box ? box->text() : QString());
        return dialog->reject();
    }
    const Expected expected = std::move(expected_.front());
    expected_.pop_front();
    expected.answer(*dialog);
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
