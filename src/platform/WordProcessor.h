#pragma once

#include "platform/WordApplication.h"

#include <QString>

#include <memory>

namespace quillford {

/// The word processor that is installed on this machine, if one is.
class WordProcessor {
public:
    virtual ~WordProcessor() = default;

    /// Whether there is a word processor to start. Takes no time, and starts nothing.
    [[nodiscard]] virtual bool isInstalled() const = 0;

    /// Whether the user has the document in the file `path` open in a word processor.
    [[nodiscard]] virtual bool isDocumentOpen(const QString& path) const = 0;

    /// Starts a word processor of the caller's own, beside whatever the user runs. Takes about a
    /// second. Raises `Error` when there is none or it does not start in time.
    [[nodiscard]] virtual std::unique_ptr<WordApplication> start() = 0;
};

} // namespace quillford
