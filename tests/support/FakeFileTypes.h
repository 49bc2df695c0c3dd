#pragma once

#include "base/Error.h"
#include "platform/FileTypes.h"

#include <QList>

namespace quillford {

/// Keeps what the desktop is told; with `fails` set it refuses.
class FakeFileTypes final : public FileTypes {
public:
    void makeKnown(const FileType& type) override {
        if (fails)
            throw Error(1, QStringLiteral("The desktop cannot be told."));
        told.append(type);
    }

    QList<FileType> told;
    bool fails = false;
};

} // namespace quillford
