#include "editors/pages/ElementPagesFixture.h"

#include "controls/FormCombo.h"
#include "controls/FramePanel.h"

#include <QTest>
#include <QApplication>
#include <QListView>
#include <QtTest>

namespace quillford {

ElementPagesFixture::ElementPagesFixture() {
    form_.resize(984, 640);
    for (std::size_t i = 0; i < containers_.size(); ++i) {
        containers_[i].setParent(&form_);
        containers_[i].setObjectName(controlName(u"picContainer", static_cast<int>(i) + 4));
        containers_[i].setGeometry(16, 122, 700, 430);
    }
    placeIndex();
    index = std::make_unique<ElementIndexPanel>(
        ElementIndexPanel::Places{indexContainer_, indexView_, indexBar_, print_}, fields, measure,
        QtTextMeasure::font(TextWeight::Regular));
    mainElements = std::make_unique<PageMainElements>(container(4), fields, bound, order, *index);
    subElements = std::make_unique<PageSubElements>(container(5), fields, bound, order);
    descriptions = std::make_unique<PageDescriptions>(container(6), fields, bound, order, measure,
                                                      [this] { stackSubElements(); });
    guidance = std::make_unique<FieldGuidance>(fields, project.state, bound,
                                               [this](const PanelScroll& to) { scroll(to); });
    mirror = std::make_unique<ContactMirror>(fields, project.state, prompts, bound, order);
    steps = std::make_unique<FieldChangeSteps>(fields, project.state, *mirror, bound, screen,
                                               *index, measure);
    fields.setObserver(steps.get());
    timers = std::make_unique<CountTimers>(fields, bound, screen, *this);
    QObject::connect(&bound, &BoundFields::focusReached,
                     [this](const FieldPlace& place) { wrap.focusReached(place); });
    QObject::connect(&bound, &BoundFields::focusLeft,
                     [this](const FieldPlace& place) { steps->focusLost(place); });
    QObject::connect(&bound, &BoundFields::chosen,
                     [this](const FieldPlace& place) { steps->clicked(place); });
    all = std::make_unique<WizardScreen>(
        WizardScreen{screen.looks, screen, *this, *guidance, *index, screen, screen, screen});
    entry = std::make_unique<TabEntry>(fields, messages, order, *all);
    navigator =
        std::make_unique<WizardNavigator>(project.state, system, rules, messages, *entry, *all);
    form_.show();
    form_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form_));
    mainElementLayouts.clear();
}

ElementPagesFixture::~ElementPagesFixture() {
    bound.disconnect();
    fields.setObserver(nullptr);
}

void ElementPagesFixture::placeIndex() {
    indexContainer_.setParent(&form_);
    indexContainer_.setObjectName(QStringLiteral("picIndexContainer"));
    indexContainer_.setGeometry(728, 370, 240, 182);
    indexView_.setParent(&indexContainer_);
    indexView_.setObjectName(QStringLiteral("picIndexPrintFrm"));
    indexView_.setGeometry(14, 32, 204, 148);
    indexBar_.setParent(&indexContainer_);
    indexBar_.setObjectName(QStringLiteral("VScroll1"));
    indexBar_.setGeometry(222, 30, 16, 150);
    print_.setParent(&indexContainer_);
    print_.setObjectName(QStringLiteral("imgPrint"));
    print_.setGeometry(210, 10, 16, 16);
}

void ElementPagesFixture::scroll(const PanelScroll& to) {
    PanelColumn* const columns[] = {&mainElements->column(), &subElements->column(),
                                    &descriptions->column()};
    columns[to.scrollIndex - 3]->ScrollPanelTo(to.row, to.atEnd, 0);
}

void ElementPagesFixture::LayoutMainElements(int count) {
    mainElementLayouts.append(count);
    mainElements->LayoutMainElements(count);
}

void ElementPagesFixture::go(int tab) {
    navigator->SwitchTab(tab);
    for (int i = 4; i < 7; ++i)
        container(i).setVisible(i == tab);
}

void ElementPagesFixture::type(const QString& name, const QString& text) {
    QWidget& field = control(name);
    auto* const area = qobject_cast<QAbstractScrollArea*>(&field);
    QTest::mouseClick(area ? area->viewport() : &field, Qt::LeftButton);
    QTest::keyClick(&field, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(&field, text);
}

void ElementPagesFixture::empty(const QString& name) {
    QTest::keyClick(&control(name), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&control(name), Qt::Key_Delete);
}

void ElementPagesFixture::clickCount(int count) {
    auto& list = control<FormCombo>(QStringLiteral("cboMainElementNum"));
    list.setFocus(Qt::MouseFocusReason);
    list.showPopup();
    list.view()->setCurrentIndex(list.model()->index(count - 1, 0));
    QTest::keyClick(list.view(), Qt::Key_Return);
    // Without a window manager nobody gives the form its activation back.
    form_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form_));
}

void ElementPagesFixture::waitForLayout() {
    auto* const timer = timers->findChild<QTimer*>(QStringLiteral("Timer(3)"));
    ASSERT_TRUE(QTest::qWaitFor([timer] { return !timer->isActive(); }));
}

void ElementPagesFixture::chooseCount(int count) {
    clickCount(count);
    waitForLayout();
}

void ElementPagesFixture::tabTo(const QString& name) {
    control(name).setFocus(Qt::TabFocusReason);
}

void ElementPagesFixture::clickTo(const QString& name) {
    control(name).setFocus(Qt::MouseFocusReason);
}

QString ElementPagesFixture::indexText() const {
    return control(QStringLiteral("picIndexOfMainElementD")).accessibleDescription();
}

QStringList ElementPagesFixture::crowded(const QWidget& panel) const {
    QStringList found;
    const auto parts = panel.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* part : parts) {
        if (!panel.rect().contains(part->geometry()))
            found.append(part->objectName() + QStringLiteral(" sticks out"));
        for (const QWidget* other : parts) {
            const bool isGround =
                qobject_cast<const FramePanel*>(part) ||
                part->objectName().startsWith(QStringLiteral("lblDesElementNameV"));
            if (other != part && !isGround && !qobject_cast<const FramePanel*>(other) &&
                !other->objectName().startsWith(QStringLiteral("lblDesElementNameV")) &&
                part->geometry().intersects(other->geometry()))
                found.append(part->objectName() + QStringLiteral(" over ") + other->objectName());
        }
    }
    return found;
}

} // namespace quillford
