#pragma once
#include "core/wizard/WizardScreen.h"
#include "core/commands/ProjectStore.h"
#include "core/fields/ProjectFields.h"
namespace quillford {
struct InterimColumns final : EditorColumns {
    explicit InterimColumns(ProjectFields& f):f_(f){}
    void LayoutInventors(int c) override {f_.setPanelCount(FieldGroup::Inventors,c);}
    void LayoutObjects(int c) override {f_.setPanelCount(FieldGroup::Objects,c);}
    void LayoutFigures(int c) override {f_.setPanelCount(FieldGroup::Figures,c);}
    void LayoutMainElements(int c) override {f_.setPanelCount(FieldGroup::MainElements,c);}
    void LayoutSubElements(int c) override {f_.setPanelCount(FieldGroup::SubElements,c);}
    void LayoutDescriptions(int c) override {f_.setPanelCount(FieldGroup::Descriptions,c);}
    void RefreshObjectSentences() override {}
    void RefreshDescriptionCaptions() override {}
    void stackSubElements() override {}
    void scrollDescriptionsToTop() override {}
    void removePicture(int) override {}
    ProjectFields& f_;
};
struct InterimIndex final : ElementIndexView { void RebuildElementIndex() override {} void clearIndex() override {} void enableIndex(bool) override {} };
struct InterimAuto final : AutoSaveSwitch { void setAutoSaveEnabled(bool b) override {on=b;} bool isAutoSaveEnabled() const override {return on;} bool on=false; };
struct InterimStore final : ProjectStore {
    bool SaveFile() override {return false;} void saveAsNew() override {} bool OpenFile(const QString&) override {return false;}
    void deleteDraft() override {} void dropDraft() override {} void updateShadow() override {} bool putShadowBack() override {return true;}
    void deleteShadow() override {} void clearOpenMarker() override {} void resetRecentCounters() override {} void reloadRecentProjects() override {}
};
}
