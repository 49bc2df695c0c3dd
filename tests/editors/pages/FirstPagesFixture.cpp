#include "editors/pages/FirstPagesFixture.h"

#include "controls/FormCombo.h"
#include "controls/FramePanel.h"
#include "controls/LineField.h"
#include "controls/TextField.h"

#include <QCheckBox>
#include <QListView>
#include <QtTest>

namespace quillford {

FirstPagesFixture::FirstPagesFixture() {
    form_.resize(984, 640);
    for (std::size_t i = 0; i < containers_.size(); ++i) {
        containers_[i].setParent(&form_);
        containers_[i].setObjectName(controlName(u"picContainer", static_cast<int>(i)));
        containers_[i].setGeometry(16, 122, 700, 430);
    }
    introduction = std::make_unique<PageIntroduction>(container(IntroductionTab), bound);
    inventors = std::make_unique<PageInventors>(container(InventorsTab), fields, bound, order);
    objects = std::make_unique<PageObjects>(container(ObjectsTab), fields, bound, order);
    connectSteps();
    form_.show();
    activate();
    go(IntroductionTab);
}

FirstPagesFixture::~FirstPagesFixture() {
    bound.disconnect();
    fields.setObserver(nullptr);
}

void FirstPagesFixture::connectSteps() {
    fields.setObserver(&steps);
    QObject::connect(&bound, &BoundFields::focusReached,
                     [this](const FieldPlace& place) { wrap.focusReached(place); });
    QObject::connect(&bound, &BoundFields::focusLeft,
                     [this](const FieldPlace& place) { steps.focusLost(place); });
    QObject::connect(&bound, &BoundFields::chosen,
                     [this](const FieldPlace& place) { steps.clicked(place); });
}

void FirstPagesFixture::go(int tab) {
    navigator_.SwitchTab(tab);
    for (int i = 0; i < static_cast<int>(containers_.size()); ++i) {
        container(i).setVisible(i == tab);
        container(i).setEnabled(i == tab);
    }
}

void FirstPagesFixture::scroll(const PanelScroll& to) {
    PanelColumn& column = to.scrollIndex == 0 ? inventors->column() : objects->column();
    column.ScrollPanelTo(to.row, to.atEnd, 0);
}

void FirstPagesFixture::LayoutInventors(int count) {
    layouts.append(count);
    inventors->LayoutInventors(count);
}

void FirstPagesFixture::LayoutObjects(int count) {
    layouts.append(count);
    objects->LayoutObjects(count);
}

QString FirstPagesFixture::shown(const QString& name) const {
    QWidget* const field = &control(name);
    if (const auto* line = qobject_cast<LineField*>(field))
        return line->text();
    if (const auto* text = qobject_cast<TextField*>(field))
        return text->text();
    return control<FormCombo>(name).text();
}

bool FirstPagesFixture::isTinted(const QString& name) const {
    QWidget* const field = &control(name);
    if (const auto* line = qobject_cast<LineField*>(field))
        return line->isTinted();
    if (const auto* text = qobject_cast<TextField*>(field))
        return text->isTinted();
    return control<FormCombo>(name).isTinted();
}

void FirstPagesFixture::type(const QString& name, const QString& text) {
    QWidget& field = control(name);
    auto* const area = qobject_cast<QAbstractScrollArea*>(&field);
    QTest::mouseClick(area ? area->viewport() : &field, Qt::LeftButton);
    QTest::keyClick(&field, Qt::Key_End, area ? Qt::ControlModifier : Qt::NoModifier);
    QTest::keyClicks(&field, text);
}

void FirstPagesFixture::empty(const QString& name) {
    QTest::keyClick(&control(name), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&control(name), Qt::Key_Delete);
}

void FirstPagesFixture::choose(const QString& name, const QString& row) {
    auto& list = control<FormCombo>(name);
    list.setFocus(Qt::MouseFocusReason);
    list.showPopup();
    const int found = list.findText(row, Qt::MatchExactly);
    ASSERT_GE(found, 0) << row.toStdString() << " is no row of " << name.toStdString();
    list.view()->setCurrentIndex(list.model()->index(found, 0));
    QTest::keyClick(list.view(), Qt::Key_Return);
    // Without a window manager nobody gives the focus back when the list closes.
    activate();
}

void FirstPagesFixture::activate() {
    form_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form_));
}

void FirstPagesFixture::chooseCount(const QString& name, int count) {
    choose(name, QString::number(count));
    waitForLayout();
}

void FirstPagesFixture::waitForLayout() {
    const auto running = timers.findChildren<QTimer*>();
    ASSERT_TRUE(QTest::qWaitFor([&running] {
        return std::none_of(running.begin(), running.end(),
                            [](const QTimer* t) { return t->isActive(); });
    }));
}

void FirstPagesFixture::click(const QString& name) {
    auto& box = control<QCheckBox>(name);
    box.setFocus(Qt::MouseFocusReason);
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box.height() / 2));
}

QString FirstPagesFixture::pressTab() {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    return focused();
}

QString FirstPagesFixture::pressBacktab() {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    return focused();
}

QString FirstPagesFixture::focused() const {
    const QWidget* const focus = QApplication::focusWidget();
    return focus ? focus->objectName() : QString();
}

namespace {

/// A ground that others lie on, or a label in the line of a frame.
bool mayBeCovered(const QWidget& part) {
    return qobject_cast<const FramePanel*>(&part) ||
           part.objectName().startsWith(QStringLiteral("lblObjectValidate"));
}

} // namespace

QStringList FirstPagesFixture::crowded(const QWidget& panel) {
    QStringList found;
    QList<QWidget*> parts = panel.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* part : parts)
        if (!panel.rect().contains(part->geometry()))
            found.append(part->objectName() + QStringLiteral(" sticks out"));
    parts.removeIf([](const QWidget* part) { return mayBeCovered(*part); });
    for (qsizetype i = 0; i < parts.size(); ++i)
        for (qsizetype j = 0; j < i; ++j)
            if (parts[i]->geometry().intersects(parts[j]->geometry()))
                found.append(parts[i]->objectName() + QStringLiteral(" over ") +
                             parts[j]->objectName());
    return found;
}

QStringList FirstPagesFixture::clipped(const QWidget& panel) {
    QStringList found;
    for (const QLabel* label : panel.findChildren<QLabel*>())
        if (!label->text().isEmpty() && !label->wordWrap() &&
            label->fontMetrics().horizontalAdvance(label->text()) > label->width())
            found.append(label->objectName());
    return found;
}

} // namespace quillford
