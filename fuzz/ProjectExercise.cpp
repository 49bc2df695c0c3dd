#include "ProjectExercise.h"

#include "base/Text.h"
#include "persistence/project/ProjectFileReader.h"
#include "persistence/project/ProjectWriter.h"
#include "support/CompoundChecker.h"
#include "support/MemoryByteStore.h"
#include "support/UnattendedPrompts.h"

#include <cstdlib>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

using File = std::shared_ptr<MemoryFile>;

void promise(bool holds) {
    if (!holds)
        std::abort();
}

/// A picture holds what its stream does, and zeros where the stream is shorter than it says; it
/// says so within bounds, so that a small file cannot fill the memory.
class Scales final : public PictureReceiver {
public:
    explicit Scales(std::size_t fileSize) : most_(fileSize + MostMissing) {}

    void takePicture(int, const QString&, const QByteArray& bytes) override {
        promise(static_cast<std::size_t>(bytes.size()) <= most_);
    }

private:
    static constexpr std::size_t MostMissing = std::size_t{32} * 1024 * 1024;

    std::size_t most_;
};

Storage open(const File& file) {
    return Storage::openRoot(std::make_unique<MemoryByteStore>(file), u"fuzz"_s);
}

/// The report, or nothing for bytes that are no compound file.
std::optional<ReadReport> read(const File& file, Project& project) {
    try {
        Scales scales(file->bytes.size());
        return ProjectFileReader(project, scales).read(open(file));
    } catch (const Error&) {
        return std::nullopt;
    }
}

/// True when the save went through; a damaged file may refuse it.
bool save(const File& file, const Project& project) {
    try {
        Storage root = open(file);
        UnattendedPrompts prompts;
        ProjectWriter(project, prompts).write(root);
        return true;
    } catch (const Error&) {
        return false;
    }
}

void requireSame(const Project& saved, const Project& opened) {
    const Project fresh;
    promise(saved.state.verifyPassed == opened.state.verifyPassed);
    for (const FieldRow& row : fieldTable()) {
        const bool isSingle = row.group == FieldGroup::Single;
        const int shown = isSingle ? 1 : saved.fields.at(groupLimits(row.group).count).number();
        for (int i = 0; i < shown; ++i) {
            const QString text = trimBlanks(saved.fields.at(row.id, i).text()).toString();
            const QString found = trimBlanks(opened.fields.at(row.id, i).text()).toString();
            // A blank state or country is stored as an empty text, for which a new project's stays.
            promise(found == text ||
                    (isSingle && text.isEmpty() && found == fresh.fields.at(row.id).text()));
        }
    }
}

} // namespace

bool exerciseProjectFile(std::span<const std::byte> bytes) {
    const auto file = std::make_shared<MemoryFile>();
    file->bytes.assign(bytes.begin(), bytes.end());
    const bool isSound = checkCompoundFile(bytes, CheckMode::OtherWriter).complaints.empty();
    Project project;
    const auto report = read(file, project);
    if (!report || report->outcome != ReadReport::Outcome::Read)
        return false;
    // The pictures lie at paths of any kind: nothing is read from the machine's files.
    for (int i = 0; i < project.fields.panelCount(FieldGroup::Figures); ++i)
        project.fields.txtAttachFig(i).loadText({});
    if (!save(file, project))
        return true;
    Project again;
    const auto second = read(file, again);
    if (!isSound)
        return true; // two elements may share sectors there, and one is written over by the other
    promise(second && second->outcome == ReadReport::Outcome::Read);
    promise(second->missing.isEmpty());
    requireSame(project, again);
    return true;
}
