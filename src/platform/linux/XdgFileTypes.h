#pragma once

#include "platform/FileTypes.h"
#include "platform/Folders.h"

#include <chrono>

namespace quillford {

/// The kinds of files of a freedesktop.org desktop. Below the user's data folder it writes a MIME
/// type
/// ("mime/packages/PROGRAM.xml") and a desktop entry ("applications/PROGRAM.desktop"), PROGRAM
/// being the program's name in lower case, and brings the two databases made from them up to date
/// where the tools for it are installed. A file of that name in any data folder, the system's
/// included, counts as known.
class XdgFileTypes final : public FileTypes {
public:
    /// How long each of the two tools may take.
    static constexpr std::chrono::milliseconds Patience{10'000};

    /// `folders` must live longer than this object.
    explicit XdgFileTypes(Folders& folders, std::chrono::milliseconds patience = Patience)
        : folders_(folders), patience_(patience) {}

    void makeKnown(const FileType& type) override;

private:
    [[nodiscard]] bool writeMissing(const QString& name, const QByteArray& bytes) const;
    void runTool(const QString& tool, const QString& folder) const;

    Folders& folders_;
    std::chrono::milliseconds patience_;
};

} // namespace quillford
