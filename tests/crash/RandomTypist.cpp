#include "crash/RandomTypist.h"

#include "controls/FormCombo.h"
#include "core/wizard/FocusOrder.h"

#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <QTest>

namespace quillford {

namespace {

constexpr int Pace = 30; // milliseconds between two acts
constexpr int SectionCount = 8;

/// A deed and how often it comes, in a hundred.
struct Habit {
    int share;
    void (RandomTypist::*deed)();
};

bool isTyped(const FieldRow& row) {
    return row.kind != FieldKind::List && row.kind != FieldKind::Check &&
           row.id != FieldId::txtAttachFig;
}

} // namespace

RandomTypist::RandomTypist(TypingUser& user, SaveJournal& journal, quint32 seed,
                           QStringList pictures)
    : user_(user), journal_(journal), pictures_(std::move(pictures)), chance_(seed) {
    passMessages(QStringLiteral("Section Not Complete"), QStringLiteral("cmdYes"));
    passMessages(QStringLiteral("Drawings - Important Information!"), QStringLiteral("cmdOK"));
    timer_.setInterval(Pace);
    connect(&timer_, &QTimer::timeout, this, &RandomTypist::act);
    timer_.start();
}

/// He has had enough of these windows, and tells each not to come again.
void RandomTypist::passMessages(const QString& title, const QString& button) {
    windows_.passes(title, [button](QDialog& window) {
        ModalUser::pressByKeys(window, window.findChild<QWidget*>(QStringLiteral("chkShowMsg")));
        ModalUser::pressByKeys(window, window.findChild<QWidget*>(button));
    });
}

/// Some deeds wait for windows, and the next act must not come in between.
void RandomTypist::act() {
    if (acting_)
        return;
    const QScopedValueRollback acting(acting_, true);
    if (toType_.isEmpty())
        choose();
    else
        typeOn();
}

/// A window that has closed may give the focus back late; what is left to type is for the field
/// that it was meant for.
void RandomTypist::typeOn() {
    if (QApplication::focusWidget() != field_)
        return toType_.clear();
    constexpr int MostAtOnce = 5;
    const int count = 1 + below(MostAtOnce);
    user_.type(toType_.left(count));
    toType_.remove(0, count);
}

void RandomTypist::choose() {
    constexpr int Hundred = 100;
    int chance = below(Hundred);
    const auto comes = [&chance](int share) {
        return std::exchange(chance, chance - share) < share;
    };
    if (comes(12))
        goToSection();
    else if (comes(7))
        chooseCount();
    else if (comes(6))
        attachPicture();
    else if (comes(4))
        saveByKeys();
    else if (comes(2))
        saveAs();
    else
        goToField();
}

/// Without a figure its section has no field to type in.
void RandomTypist::goToField() {
    const QStringList fields = fieldsOfSection();
    if (fields.isEmpty())
        return goToSection();
    const QString name = fields[below(static_cast<int>(fields.size()))];
    if (user_.isInView(user_.control(name)))
        user_.click(name);
    else
        user_.tabTo(name);
    field_ = &user_.control(name);
    if (below(3) == 0)
        user_.press(Qt::Key_A, Qt::ControlModifier);
    else
        user_.press(Qt::Key_End, Qt::ControlModifier);
    if (below(12) == 0)
        paste();
    else
        toType_ = text();
}

void RandomTypist::goToSection() {
    tab_ = below(SectionCount);
    user_.click(controlName(u"picTab", tab_));
    user_.comeBack();
}

void RandomTypist::chooseCount() {
    static const QHash<int, FieldId> lists = {
        {1, FieldId::cboInventorsNum},
        {2, FieldId::cboObjectNum},
        {3, FieldId::cboFiguresNum},
        {4, FieldId::cboMainElementNum},
    };
    if (!lists.contains(tab_))
        return goToSection();
    const QString list = fieldRow(lists[tab_]).name.toString();
    const auto& combo = user_.control<FormCombo>(list);
    user_.choose(list, combo.itemText(below(std::min(combo.count(), 9))));
    // The layout comes a little later.
    QTest::qWait(5);
}

void RandomTypist::attachPicture() {
    const int figures = numberIn(FieldId::cboFiguresNum);
    if (tab_ != 3 || figures == 0)
        return goToField();
    windows_.isAskedForFile(pictures_[below(static_cast<int>(pictures_.size()))]);
    user_.tabTo(controlName(u"imgBrowse", below(figures)));
    user_.press(Qt::Key_Space);
    user_.comeBack();
}

void RandomTypist::saveByKeys() {
    journal_.save(journal_.project(), [this] { user_.press(Qt::Key_S, Qt::ControlModifier); });
}

void RandomTypist::saveAs() {
    const QString path =
        QFileInfo(journal_.project()).path() + QStringLiteral("/copy-%1.ivd").arg(++copies_);
    user_.click(QStringLiteral("lblMenuFile"));
    // A click that makes the form the active window may close the menu again.
    if (!QApplication::activePopupWidget())
        return;
    windows_.isAskedForFile(path);
    journal_.save(path, [this] { user_.press(Qt::Key_A); });
    user_.comeBack();
}

int RandomTypist::below(int end) {
    return static_cast<int>(chance_() % static_cast<quint32>(end));
}

int RandomTypist::numberIn(FieldId count) const {
    return user_.shown(controlName(FieldPlace{count, 0})).toInt();
}

QStringList RandomTypist::fieldsOfSection() const {
    QStringList names;
    for (const FieldRow& row : fieldTable()) {
        if (row.section != tab_ + 1 || !isTyped(row))
            continue;
        const bool isSingle = row.group == FieldGroup::Single;
        const int count = isSingle ? 1 : numberIn(groupLimits(row.group).count);
        for (int i = 0; i < count; ++i) {
            const QString name = controlName(FieldPlace{row.id, i});
            if (user_.control(name).isEnabled())
                names.append(name);
        }
    }
    return names;
}

QString RandomTypist::text() {
    static const QStringList words = {
        QStringLiteral("hinge"),          QStringLiteral("a tilting mast"),
        QStringLiteral("spring-loaded "), QStringLiteral("caf\u00e9"),
        QStringLiteral("\u92fc"),         QStringLiteral("12\u00bd"),
        QStringLiteral("<b>&amp;"),       QStringLiteral("  "),
        QStringLiteral("carries it."),
    };
    QString text;
    for (int i = 1 + below(6); i > 0; --i)
        text += words[below(static_cast<int>(words.size()))] + u' ';
    return text + QString::number(below(100000));
}

/// Long texts take a stream from its small sectors into large ones, and over what is gathered.
void RandomTypist::paste() {
    QString pasted;
    for (int length = 1 << below(15); pasted.size() < length;)
        pasted += text() + u' ';
    QGuiApplication::clipboard()->setText(pasted);
    user_.press(Qt::Key_V, Qt::ControlModifier);
}

} // namespace quillford
