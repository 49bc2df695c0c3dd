#pragma once

#include "core/fields/Project.h"

#include <QString>

#include <random>

namespace quillford {

/// Makes projects by chance; the same seed makes the same project. Every count comes up, fields are
/// empty, blank, or hold whatever a text can hold, and one project in a hundred holds a text of a
/// million characters.
class ProjectMaker {
public:
    explicit ProjectMaker(unsigned seed);

    /// Fills a new project. Attached figures are named by paths at which no file stands.
    void fill(Project& project);

private:
    [[nodiscard]] int below(int bound);
    [[nodiscard]] QString text(const FieldRow& row);
    [[nodiscard]] QString anyText();

    std::mt19937 chance_;
    bool hasLongText_;
};

} // namespace quillford
