#pragma once

#include "controls/Theme.h"
#include "core/fields/Project.h"
#include "core/settings/SettingsNames.h"
#include "core/wizard/WizardNavigator.h"
#include "editors/binding/FieldGuidance.h"
#include "editors/columns/CountTimers.h"
#include "editors/index/ElementIndexPanel.h"
#include "editors/pages/PageDescriptions.h"
#include "editors/pages/PageMainElements.h"
#include "editors/pages/PageSubElements.h"
#include "editors/rules/FieldChangeSteps.h"
#include "editors/rules/TabWrap.h"
#include "platform/linux/QtTextMeasure.h"
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

/// A new project under the pages of Sections 5 to 7 and the Index of Elements, with everything
/// behind them but the files: what is typed and clicked here has the effects that it has in the
/// program.
class ElementPagesFixture : public testing::Test, public EditorColumns {
protected:
    ElementPagesFixture();
    ~ElementPagesFixture() override;

    ElementPagesFixture(const ElementPagesFixture&) = delete;
    ElementPagesFixture& operator=(const ElementPagesFixture&) = delete;

    static constexpr int MainElementsTab = 4;
    static constexpr int SubElementsTab = 5;
    static constexpr int DescriptionsTab = 6;

    /// Switches to a tab, as its picture or a step button does.
    void go(int tab);

    /// The control with this name, "txtElementName(2)"; a name that is not there fails the test.
    template <typename Control = QWidget>
    Control& control(const QString& name) const {
        return *require<Control>(form_.findChild<Control*>(name), name);
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

    /// Chooses the number of Main Elements from its list, also the one that stands already, and
    /// waits for what follows.
    void chooseCount(int count);

    /// The same without the waiting.
    void clickCount(int count);
    void waitForLayout();

    /// The focus comes to a field by the Tab key, and by the mouse or the program.
    void tabTo(const QString& name);
    void clickTo(const QString& name);

    /// The numerals and texts that the Index of Elements shows, from its upper end.
    [[nodiscard]] QString indexText() const;

    /// Every two parts of a panel or page that lie over each other, and all that stick out of it;
    /// frames, and the star label below its own caption, are meant to.
    [[nodiscard]] QStringList crowded(const QWidget& panel) const;

    [[nodiscard]] QWidget& container(int tab) {
        return containers_[static_cast<std::size_t>(tab - 4)];
    }

    [[nodiscard]] QWidget& form() { return form_; }

    // EditorColumns

    void LayoutInventors(int) override { FAIL() << "not one of these sections"; }

    void LayoutObjects(int) override { FAIL() << "not one of these sections"; }

    void LayoutFigures(int) override { FAIL() << "not one of these sections"; }

    void LayoutMainElements(int count) override;

    void LayoutSubElements(int count) override { subElements->LayoutSubElements(count); }

    void LayoutDescriptions(int count) override { descriptions->LayoutDescriptions(count); }

    void RefreshObjectSentences() override { FAIL() << "not one of these sections"; }

    void RefreshDescriptionCaptions() override { descriptions->RefreshDescriptionCaptions(); }

    void stackSubElements() override { subElements->stackSubElements(); }

    void scrollDescriptionsToTop() override { descriptions->scrollDescriptionsToTop(); }

    void removePicture(int) override { FAIL() << "not one of these sections"; }

    void bringIntoView(FieldId, int) override { FAIL() << "not one of these sections"; }

    void showPicture(int) override { FAIL() << "not one of these sections"; }

    Project project;
    ProjectFields& fields = project.fields;
    QList<int> mainElementLayouts; ///< the counts of all layouts of Section 5
    QtTextMeasure measure;
    FocusOrder order;

private:
    template <typename Control>
    static Control* require(Control* found, const QString& name) {
        if (!found)
            throw std::runtime_error("there is no " + name.toStdString());
        return found;
    }

    void placeIndex();
    void scroll(const PanelScroll& scroll);

    /// Comes before the first widget, which takes its font from the application.
    struct Look {
        Look() { theme::apply(*qApp); }
    } look_;

    QWidget form_;
    std::array<QWidget, 3> containers_;
    QWidget indexContainer_;
    QWidget indexView_;
    QScrollBar indexBar_;
    QWidget print_;

protected:
    BoundFields bound{fields};
    CallLog log;
    RecordingScreen screen{fields, log};
    std::unique_ptr<ElementIndexPanel> index;
    std::unique_ptr<PageMainElements> mainElements;
    std::unique_ptr<PageSubElements> subElements;
    std::unique_ptr<PageDescriptions> descriptions;

    FakePrompts prompts;
    std::unique_ptr<FieldGuidance> guidance;
    std::unique_ptr<ContactMirror> mirror;
    std::unique_ptr<FieldChangeSteps> steps;
    TabWrap wrap{fields, screen, order};
    std::unique_ptr<CountTimers> timers;

    mdlSystem system;
    FakeSettings store;
    Settings settings{store};
    SectionRules rules{fields, project.state, screen.looks, prompts};
    SectionMessages messages{system, settings, prompts};
    std::unique_ptr<WizardScreen> all;
    std::unique_ptr<TabEntry> entry;
    std::unique_ptr<WizardNavigator> navigator;
};

} // namespace quillford
