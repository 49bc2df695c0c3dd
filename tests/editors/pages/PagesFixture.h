#pragma once

#include "core/fields/Project.h"
#include "core/settings/SettingsNames.h"
#include "core/wizard/WizardNavigator.h"
#include "editors/binding/FieldGuidance.h"
#include "editors/columns/CountTimers.h"
#include "editors/pages/SectionColumns.h"
#include "editors/rules/FieldChangeSteps.h"
#include "editors/rules/TabWrap.h"
#include "platform/linux/QtTextMeasure.h"
#include "shell/TabWalk.h"
#include "support/FakePrompts.h"
#include "support/FakeSettings.h"
#include "support/RecordingScreen.h"
#include "support/Themed.h"

#include <QLabel>
#include <QScrollBar>

#include <gtest/gtest.h>
#include <map>
#include <memory>

namespace quillford {

/// A new project under the pages of some sections, with everything behind them but the files: what
/// is typed and clicked here, the Tab key included, has the effects that it has in the program.
class PagesFixture : public testing::Test {
protected:
    PagesFixture();
    ~PagesFixture() override;

    /// Makes the panel of a tab, for a page that it owns.
    QWidget& addContainer(int tab);

    [[nodiscard]] QWidget& container(int tab) { return *containers_.at(tab); }

    /// Joins what the pages need, and shows the form. Sections without a page must not be entered.
    void join(const SectionColumns::Pages& pages, ElementIndexView& index);

    /// Switches to a tab, as its picture or a step button does.
    void go(int tab);

    /// The control with this name, "txtObject(2)"; a name that is not there fails the test.
    template <typename Control = QWidget>
    [[nodiscard]] Control& control(const QString& name) const {
        if (auto* const found = form_.findChild<Control*>(name))
            return *found;
        throw std::runtime_error("there is no " + name.toStdString());
    }

    [[nodiscard]] bool exists(const QString& name) const {
        return form_.findChild<QWidget*>(name) != nullptr;
    }

    [[nodiscard]] QString label(const QString& name) const { return control<QLabel>(name).text(); }

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

    /// The focus comes to a field by the Tab key, and by the mouse or the program.
    void tabTo(const QString& name) { control(name).setFocus(Qt::TabFocusReason); }

    void clickTo(const QString& name) { control(name).setFocus(Qt::MouseFocusReason); }

    /// Every two parts of a panel or page that lie over each other, and all that stick out of it;
    /// frames, what stands in their line, and a star label below its own caption are meant to.
    [[nodiscard]] static QStringList crowded(const QWidget& panel);

    [[nodiscard]] QWidget& form() { return form_; }

private:
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

    /// Keeps the counts of the layouts.
    class Columns final : public SectionColumns {
    public:
        using SectionColumns::SectionColumns;

        void LayoutInventors(int count) override;
        void LayoutObjects(int count) override;
        void LayoutMainElements(int count) override;

        QList<int> layouts;
    };

    void activate();

    const Themed theme_;

protected:
    Project project;
    ProjectFields& fields = project.fields;
    FocusOrder order;
    FakePrompts prompts;
    QtTextMeasure measure;

private:
    Form form_{order};
    std::map<int, QWidget*> containers_; ///< owned by the form
    CallLog log_;

protected:
    BoundFields bound{fields};
    RecordingScreen screen{fields, log_};
    std::unique_ptr<Columns> columns;
    std::unique_ptr<FieldGuidance> guidance;
    SectionRules rules{fields, project.state, screen.looks, prompts};

private:
    ContactMirror mirror_{fields, project.state, prompts, bound, order};
    TabWrap wrap_{fields, screen, order};
    std::unique_ptr<FieldChangeSteps> steps_;
    std::unique_ptr<CountTimers> timers_;
    mdlSystem system_;
    FakeSettings store_;
    Settings settings_{store_};
    SectionMessages messages_{system_, settings_, prompts};
    std::unique_ptr<WizardScreen> all_;
    std::unique_ptr<TabEntry> entry_;
    std::unique_ptr<WizardNavigator> navigator_;
};

} // namespace quillford
