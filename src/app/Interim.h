#pragma once
#include "core/fields/ProjectFields.h"
#include "core/wizard/WizardScreen.h"

namespace quillford {
struct InterimColumns final : EditorColumns {
    explicit InterimColumns(ProjectFields& f) : f_(f) {}

    void LayoutInventors(int c) override { f_.setPanelCount(FieldGroup::Inventors, c); }

    void LayoutObjects(int c) override { f_.setPanelCount(FieldGroup::Objects, c); }

    void LayoutFigures(int c) override { f_.setPanelCount(FieldGroup::Figures, c); }

    void LayoutMainElements(int c) override { f_.setPanelCount(FieldGroup::MainElements, c); }

    void LayoutSubElements(int c) override { f_.setPanelCount(FieldGroup::SubElements, c); }

    void LayoutDescriptions(int c) override { f_.setPanelCount(FieldGroup::Descriptions, c); }

    void RefreshObjectSentences() override {}

    void RefreshDescriptionCaptions() override {}

    void stackSubElements() override {}

    void scrollDescriptionsToTop() override {}

    void removePicture(int) override {}

    void showPicture(int) override {}

    ProjectFields& f_;
};

} // namespace quillford
