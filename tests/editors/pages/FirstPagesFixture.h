#pragma once

#include "controls/Theme.h"
#include "core/fields/Project.h"
#include "core/settings/SettingsNames.h"
#include "core/wizard/WizardNavigator.h"
#include "editors/binding/FieldGuidance.h"
#include "editors/columns/CountTimers.h"
#include "editors/pages/PageIntroduction.h"
#include "editors/pages/PageInventors.h"
#include "editors/pages/PageObjects.h"
#include "editors/rules/FieldChangeSteps.h"
#include "editors/rules/TabWrap.h"
#include "platform/linux/QtTextMeasure.h"
#include "shell/TabWalk.h"
#include "support/FakePrompts.h"
#include "support/FakeSettings.h"
#include "support/RecordingScreen.h"

#include <QApplication>
#include <QLabel>
#include <QScrollBar>

#include <array>
#include <gtest/gtest.h>
#include <memory>

namespace quillford {

/// A new project under the pages of Sections 1 to 3, with everything behind them but the files:
/// what is typed and clicked here, the Tab key included, has the effects that it has in the
/// program.
class FirstPagesFixture : public testing::Test, public EditorColumns {
protected:
    FirstPagesFixture();
    ~FirstPagesFixture() override;

    FirstPagesFixture(const FirstPagesFixture&) = delete;
    FirstPagesFixture& operator=(const FirstPagesFixture&) = delete;

    static constexpr int IntroductionTab = 0;
    static constexpr int InventorsTab = 1;
    static constexpr int ObjectsTab = 2;

    /// Switches to a tab, as its picture or a step button does.
    void go(int tab);

    /// The control with this name, "txtObject(2)"; a name that is not there fails the test.
    template <typename Control = QWidget>
    [[nodiscard]] Control& control(const QString& name) const {
        auto* const found = form_.findChild<Control*>(name);
        if (!found)
            throw std::runtime_error("there is no " + name.toStdString());
        return *found;
    }

    [[nodiscard]] bool exists(const QString& name) const {
        return form_.findChild<QWidget*>(name) != nullptr;
    }

    [[nodiscard]] QString label(const QString& name) const { return control<QLabel>(name).text(); }

    /// What a field's control shows, of whatever kind it is.
    [[nodiscard]] QString shown(const QString& name) const;

    [[nodiscard]] bool isTinted(const QString& name) const;

    [[nodiscard]] QScrollBar& vscroll(int column) const {
        return control<QScrollBar>(controlName(u"vscroll", column));
    }

    /// Clicks into a field and types at its end.
    void type(const QString& name, const QString& text);

    /// Empties a field by keys.
    void empty(const QString& name);

    /// Chooses a row of a list, also the one that stands already.
    void choose(const QString& name, const QString& row);

    /// The same in a list of counts, and waits for the layout that follows.
    void chooseCount(const QString& name, int count);
    void waitForLayout();

    /// Clicks a check box.
    void click(const QString& name);

    /// Presses the Tab key and tells which control has the focus then.
    QString pressTab();
    QString pressBacktab();

    [[nodiscard]] QString focused() const;

    /// The focus comes to a field by the Tab key, and by the mouse or the program.
    void tabTo(const QString& name) { control(name).setFocus(Qt::TabFocusReason); }

    void clickTo(const QString& name) { control(name).setFocus(Qt::MouseFocusReason); }

    /// Every two parts of a panel or page that lie over each other, and all that stick out of it;
    /// frames, what stands in their line, and a star label below its own caption are meant to.
    [[nodiscard]] static QStringList crowded(const QWidget& panel);

    /// The labels of a panel whose text is wider than they are.
    [[nodiscard]] static QStringList clipped(const QWidget& panel);

    [[nodiscard]] QWidget& container(int tab) { return containers_[static_cast<std::size_t>(tab)]; }

    // EditorColumns

    void LayoutInventors(int count) override;
    void LayoutObjects(int count) override;

    void LayoutFigures(int) override { FAIL() << "not one of these sections"; }

    void LayoutMainElements(int) override { FAIL() << "not one of these sections"; }

    void LayoutSubElements(int) override { FAIL() << "not one of these sections"; }

    void LayoutDescriptions(int) override { FAIL() << "not one of these sections"; }

    void RefreshObjectSentences() override { objects->RefreshObjectSentences(); }

    void RefreshDescriptionCaptions() override { FAIL() << "not one of these sections"; }

    void stackSubElements() override { FAIL() << "not one of these sections"; }

    void scrollDescriptionsToTop() override { FAIL() << "not one of these sections"; }

    void showPicture(int) override { FAIL() << "not one of these sections"; }

    void removePicture(int) override { FAIL() << "not one of these sections"; }

    void bringIntoView(FieldId, int) override { FAIL() << "not one of these sections"; }

    Project project;
    ProjectFields& fields = project.fields;
    QList<int> layouts; ///< the counts of all layouts
    FocusOrder order;

private:
    void connectSteps();
    void activate();
    void scroll(const PanelScroll& to);

    /// Comes before the first widget, which takes its font from the application.
    struct Look {
        Look() { theme::apply(*qApp); }
    } look_;

    /// Walks by the numbers of the controls, as the main form does.
    class Form final : public QWidget {
    public:
        explicit Form(const FocusOrder& order) : order_(order) {}

    protected:
        bool focusNextPrevChild(bool next) override {
            QWidget* const reached = nextByTab(*this, order_, next);
            if (reached)
                reached->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return reached != nullptr;
        }

    private:
        const FocusOrder& order_;
    };

    Form form_{order};
    std::array<QWidget, 3> containers_;
    QtTextMeasure measure_;

protected:
    BoundFields bound{fields};
    CallLog log;
    RecordingScreen screen{fields, log};
    FakePrompts prompts;
    std::unique_ptr<PageIntroduction> introduction;
    std::unique_ptr<PageInventors> inventors;
    std::unique_ptr<PageObjects> objects;

    FieldGuidance guidance{fields, project.state, bound,
                           [this](const PanelScroll& to) { scroll(to); }};
    ContactMirror mirror{fields, project.state, prompts, bound, order};
    FieldChangeSteps steps{fields, project.state, mirror, bound, screen, screen, measure_};
    TabWrap wrap{fields, screen, order};
    CountTimers timers{fields, bound, screen, *this};

private:
    mdlSystem system_;
    FakeSettings store_;
    Settings settings_{store_};
    SectionRules rules_{fields, project.state, screen.looks, prompts};
    SectionMessages messages_{system_, settings_, prompts};
    WizardScreen all_{screen.looks, screen, *this, guidance, screen, screen, screen, screen};
    TabEntry entry_{fields, messages_, order, all_};
    WizardNavigator navigator_{project.state, system_, rules_, messages_, entry_, all_};
};

} // namespace quillford
