#pragma once

#include "platform/DocumentOpener.h"

#include <QStringList>

namespace quillford {

/// Opens nothing and keeps what it was asked.
class FakeDocumentOpener final : public DocumentOpener {
public:
    Result result = Result::Opened;
    QStringList opened;
    QStringList askedFor;

    Result open(const QString& document) override {
        opened.append(document);
        return result;
    }

    void askForProgram(const QString& document) override { askedFor.append(document); }
};

} // namespace quillford
