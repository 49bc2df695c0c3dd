#pragma once

#include "core/fields/ProjectFields.h"
#include "core/wizard/WizardScreen.h"
#include "support/CallLog.h"
#include "support/FakeTabLooks.h"
#include "support/PrintQt.h"

#include <array>

namespace quillford {

/// A window that writes down what the wizard's logic asks of it, and behaves as far as that logic
/// can see: panels are shown and enabled, and a layout makes the project's panels.
class RecordingScreen final : public PageStack,
                              public EditorColumns,
                              public Guidance,
                              public ElementIndexView,
                              public TitleLine,
                              public ProjectScreen,
                              public AutoSaveSwitch {
public:
    RecordingScreen(ProjectFields& fields, CallLog& log) : fields_(fields), log_(log) {
        enabled.fill(true);
        shown.fill(true);
        looks.refuses = [this](const std::string& call) {
            log_.take(call);
            return false;
        };
        for (int tab = 0; tab < TabCount; ++tab)
            pages_.emplace_back(tab, log);
    }

    RecordingScreen(const RecordingScreen&) = delete;
    RecordingScreen& operator=(const RecordingScreen&) = delete;

    static constexpr int TabCount = 10;

    FakeTabLooks looks;
    WizardScreen all{looks, *this, *this, *this, *this, *this, *this, *this};
    std::array<bool, TabCount> enabled{};
    std::array<bool, TabCount> shown{};
    bool welcome = false;
    bool autoSave = false;

    // PageStack

    SectionPage& page(int tab) override { return pages_.at(static_cast<std::size_t>(tab)); }

    void enablePanel(int tab, bool on) override {
        enabled.at(static_cast<std::size_t>(tab)) = on;
        log_.take(on ? callText("enable panel", tab) : callText("disable panel", tab));
    }

    bool isPanelEnabled(int tab) const override {
        return enabled.at(static_cast<std::size_t>(tab));
    }

    void bringPanelToFront(int tab) override { log_.take(callText("panel to front", tab)); }

    void showPanel(int tab, bool on) override {
        shown.at(static_cast<std::size_t>(tab)) = on;
        log_.take(on ? callText("show panel", tab) : callText("hide panel", tab));
    }

    bool isPanelShown(int tab) const override { return shown.at(static_cast<std::size_t>(tab)); }

    void focusPanel(int tab) override { log_.take(callText("focus panel", tab)); }

    void focusField(FieldId field, int) override {
        log_.take("focus " + fieldRow(field).name.toString().toStdString());
    }

    void HelpOn(int tab) override { log_.take(callText("HelpOn", tab)); }

    // EditorColumns

    void LayoutInventors(int count) override {
        layout("LayoutInventors", FieldGroup::Inventors, count);
    }

    void LayoutObjects(int count) override { layout("LayoutObjects", FieldGroup::Objects, count); }

    void LayoutFigures(int count) override { layout("LayoutFigures", FieldGroup::Figures, count); }

    void LayoutMainElements(int count) override {
        layout("LayoutMainElements", FieldGroup::MainElements, count);
    }

    void LayoutSubElements(int count) override {
        layout("LayoutSubElements", FieldGroup::SubElements, count);
    }

    void LayoutDescriptions(int count) override {
        layout("LayoutDescriptions", FieldGroup::Descriptions, count);
    }

    void RefreshObjectSentences() override { log_.take("RefreshObjectSentences"); }

    void RefreshDescriptionCaptions() override { log_.take("RefreshDescriptionCaptions"); }

    void stackSubElements() override { log_.take("stack sub-elements"); }

    void scrollDescriptionsToTop() override { log_.take("descriptions to top"); }

    void bringIntoView(FieldId field, int index) override {
        log_.take(callText("into view " + fieldRow(field).name.toString().toStdString(), index));
    }

    void showPicture(int index) override { log_.take(callText("show picture", index)); }

    void removePicture(int index) override { log_.take(callText("remove picture", index)); }

    // Guidance

    void TextHighLight(int tab) override { log_.take(callText("TextHighLight", tab)); }

    void TextgotFocus(int tab) override { log_.take(callText("TextgotFocus", tab)); }

    void whitenAll() override { log_.take("whiten all"); }

    // ElementIndexView

    void RebuildElementIndex() override { log_.take("RebuildElementIndex"); }

    void clearIndex() override { log_.take("clear index"); }

    void enableIndex(bool on) override { log_.take(on ? "enable index" : "disable index"); }

    // TitleLine

    void showTitleInvention(const QString& caption) override {
        log_.take("title line: " + caption.toStdString());
    }

    // ProjectScreen

    void setCaption(const QString& caption) override {
        log_.take("caption: " + caption.toStdString());
    }

    void setHourglass(bool on) override { log_.take(on ? "hourglass" : "default pointer"); }

    void showBlankPreview() override { log_.take("blank preview"); }

    bool isWelcomePageShown() const override { return welcome; }

    void showWelcomePage() override {
        welcome = true;
        log_.take("show Welcome page");
    }

    void hideWelcomePage() override {
        welcome = false;
        log_.take("hide Welcome page");
    }

    // AutoSaveSwitch

    void setAutoSaveEnabled(bool on) override {
        autoSave = on;
        log_.take(on ? "autosave on" : "autosave off");
    }

    bool isAutoSaveEnabled() const override { return autoSave; }

private:
    class Page final : public SectionPage {
    public:
        Page(int tab, CallLog& log) : tab_(tab), log_(log) {}

        void entered() override { log_.take(callText("entered", tab_)); }

        void switched() override { log_.take(callText("switched", tab_)); }

    private:
        int tab_;
        CallLog& log_;
    };

    void layout(const std::string& name, FieldGroup group, int count) {
        fields_.setPanelCount(group, count);
        log_.take(callText(name, count));
    }

    ProjectFields& fields_;
    CallLog& log_;
    std::vector<Page> pages_;
};

} // namespace quillford
