#pragma once

#include "base/Error.h"
#include "base/Files.h"
#include "persistence/compound/StorageError.h"
#include "persistence/project/PropertyBytes.h"
#include "persistence/project/PropertySetReader.h"
#include "support/PrintQt.h"

#include <QDir>

#include <gtest/gtest.h>
#include <optional>

namespace quillford {

/// The `Error` that `call` raises; nothing when it raises none.
template <typename Call>
std::optional<Error> errorOf(Call call) {
    try {
        call();
    } catch (const Error& error) {
        return error;
    }
    return std::nullopt;
}

/// The number of that error; 0 when there is none.
template <typename Call>
qint64 numberOfError(Call call) {
    const auto error = errorOf(call);
    return error ? error->number() : 0;
}

[[nodiscard]] inline qint64 numberOf(StorageCode code) {
    return static_cast<qint64>(code);
}

/// The property-set streams of a folder in fuzz/.
[[nodiscard]] inline QDir streamsIn(const QString& folder) {
    const QDir found(QStringLiteral(QUILLFORD_SOURCE_DIR "/fuzz/") + folder +
                     QStringLiteral("/propertyset"));
    EXPECT_FALSE(found.isEmpty()) << found.path().toStdString();
    return found;
}

[[nodiscard]] inline QByteArray seed(const QString& name) {
    return contentOfFile(streamsIn(QStringLiteral("seeds")).filePath(name));
}

[[nodiscard]] inline PropertySet readSet(const QByteArray& bytes) {
    return readPropertySet(propertyset::bytesOf(bytes));
}

[[nodiscard]] inline ClassId summaryFormat() {
    return ClassId::fromText(QStringLiteral("{F29F85E0-4FF9-1068-AB91-08002B27B3D9}"));
}

[[nodiscard]] inline ClassId documentFormat() {
    return ClassId::fromText(QStringLiteral("{D5CDD502-2E9C-101B-9397-08002B2CF9AE}"));
}

[[nodiscard]] inline ClassId userFormat() {
    return ClassId::fromText(QStringLiteral("{D5CDD505-2E9C-101B-9397-08002B2CF9AE}"));
}

} // namespace quillford
