#pragma once

#include "persistence/compound/ClassId.h"
#include "persistence/project/PropertySection.h"
#include "persistence/project/PropertySetFormat.h"

#include <algorithm>
#include <vector>

namespace quillford {

/// What a property-set stream holds: one section, or two as the document summary information and
/// the user-defined properties. Version, system and class are kept for whoever wrote them.
struct PropertySet {
    quint16 version = 0;
    quint32 system = propertyset::System;
    ClassId classId;
    std::vector<PropertySection> sections;

    /// The section of a format; nothing when there is none.
    [[nodiscard]] PropertySection* find(const ClassId& format) {
        const auto found = std::ranges::find(sections, format, &PropertySection::format);
        return found == sections.end() ? nullptr : &*found;
    }
};

} // namespace quillford
