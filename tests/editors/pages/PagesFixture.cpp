#include "editors/pages/PagesFixture.h"

#include "controls/FormCombo.h"
#include "controls/FramePanel.h"

#include <QListView>
#include <QTest>

#include <algorithm>

namespace quillford {

namespace {

/// A ground that others lie on, or a label in the line of a frame or over its own caption.
bool mayBeCovered(const QWidget& part) {
    return qobject_cast<const FramePanel*>(&part) ||
           part.objectName().startsWith(QStringLiteral("lblObjectValidate")) ||
           part.objectName().startsWith(QStringLiteral("lblDesElementNameV"));
}

} // namespace

PagesFixture::PagesFixture() {
    form_.resize(984, 640);
}

PagesFixture::~PagesFixture() {
    bound.disconnect();
    fields.setObserver(nullptr);
}

QWidget& PagesFixture::addContainer(int tab) {
    auto* const made = new QWidget(&form_);
    made->setObjectName(controlName(u"picContainer", tab));
    made->setGeometry(16, 122, 700, 430);
    containers_[tab] = made;
    return *made;
}

void PagesFixture::join(const SectionColumns::Pages& pages, ElementIndexView& index) {
    columns = std::make_unique<Columns>(pages, bound);
    guidance = std::make_unique<FieldGuidance>(
        fields, project.state, bound, [this](const PanelScroll& to) { columns->scroll(to); });
    steps_ = std::make_unique<FieldChangeSteps>(fields, project.state, mirror_, bound, screen,
                                                index, measure);
    timers_ = std::make_unique<CountTimers>(fields, bound, screen, *columns);
    all_ = std::make_unique<WizardScreen>(
        WizardScreen{screen.looks, screen, *columns, *guidance, index, screen, screen, screen});
    entry_ = std::make_unique<TabEntry>(fields, messages_, order, *all_);
    navigator_ =
        std::make_unique<WizardNavigator>(project.state, system_, rules, messages_, *entry_, *all_);
    fields.setObserver(steps_.get());
    bound.setHooks({{}, [this](int figure) { columns->showFigureSentence(figure); }});
    QObject::connect(&bound, &BoundFields::focusReached,
                     [this](const FieldPlace& place) { wrap_.focusReached(place); });
    QObject::connect(&bound, &BoundFields::focusLeft,
                     [this](const FieldPlace& place) { steps_->focusLost(place); });
    QObject::connect(&bound, &BoundFields::chosen,
                     [this](const FieldPlace& place) { steps_->clicked(place); });
    form_.show();
    activate();
}

void PagesFixture::activate() {
    form_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form_));
}

void PagesFixture::go(int tab) {
    navigator_->SwitchTab(tab);
    for (const auto& [number, panel] : containers_) {
        panel->setVisible(number == tab);
        panel->setEnabled(number == tab);
    }
}

void PagesFixture::type(const QString& name, const QString& text) {
    QWidget& field = control(name);
    auto* const area = qobject_cast<QAbstractScrollArea*>(&field);
    QTest::mouseClick(area ? area->viewport() : &field, Qt::LeftButton);
    QTest::keyClick(&field, Qt::Key_End, area ? Qt::ControlModifier : Qt::NoModifier);
    QTest::keyClicks(&field, text);
}

void PagesFixture::empty(const QString& name) {
    QTest::keyClick(&control(name), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&control(name), Qt::Key_Delete);
}

void PagesFixture::choose(const QString& name, const QString& row) {
    auto& list = control<FormCombo>(name);
    list.setFocus(Qt::MouseFocusReason);
    list.showPopup();
    const int found = list.findText(row, Qt::MatchExactly | Qt::MatchCaseSensitive);
    ASSERT_GE(found, 0) << row.toStdString() << " is no row of " << name.toStdString();
    list.view()->setCurrentIndex(list.model()->index(found, 0));
    QTest::keyClick(list.view(), Qt::Key_Return);
    // Without a window manager nobody gives the focus back when the list closes.
    activate();
}

void PagesFixture::chooseCount(const QString& name, int count) {
    choose(name, QString::number(count));
    waitForLayout();
}

void PagesFixture::waitForLayout() {
    const auto running = timers_->findChildren<QTimer*>();
    ASSERT_TRUE(QTest::qWaitFor([&running] {
        return std::none_of(running.begin(), running.end(),
                            [](const QTimer* timer) { return timer->isActive(); });
    }));
}

QStringList PagesFixture::crowded(const QWidget& panel) {
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

void PagesFixture::Columns::LayoutInventors(int count) {
    layouts.append(count);
    SectionColumns::LayoutInventors(count);
}

void PagesFixture::Columns::LayoutObjects(int count) {
    layouts.append(count);
    SectionColumns::LayoutObjects(count);
}

void PagesFixture::Columns::LayoutMainElements(int count) {
    layouts.append(count);
    SectionColumns::LayoutMainElements(count);
}

} // namespace quillford
