#pragma once

#include "persistence/compound/Storage.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Applies a list of operations, one a line, to a compound file: see `apply`.
class Spec {
public:
    explicit Spec(quillford::Storage root) : root_(std::move(root)) {}

    /// Applies the operations of `text` (UTF-8) in order and commits at the end. Raises the errors
    /// of the storage, and one that names a line that makes no sense.
    void apply(const QByteArray& text);

private:
    struct Place;

    void applyLine(const QString& line);
    void stream(QStringList words);
    void fields(QStringList words);
    void picture(QStringList words);
    void write(QStringList words);
    void setSize(QStringList words);
    void remove(const QStringList& words);
    void rename(const QStringList& words);

    [[nodiscard]] Place placeOf(const QStringList& words);
    [[nodiscard]] quillford::Stream openStream(const QStringList& words);
    void writeContent(quillford::Stream& stream, quint64 seed, quint64 size) const;

    quillford::Storage root_;
    quint64 chunk_ = 0;
};
