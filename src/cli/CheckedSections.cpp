#include "cli/CheckedSections.h"

namespace quillford {

CheckedSections::CheckedSections(const Project& project, UserPrompts& prompts)
    : rules_(project.fields, project.state, tabs_, prompts) {
    for (int tab = 0; tab < SectionRules::SectionCount; ++tab)
        rules_.validateSection(tab);
}

} // namespace quillford
