#pragma once

#include <QString>
#include <QStringList>

/// The compound-file layer as the program uses it.
namespace ours {

/// Writes each file into a stream of `target` as a picture is written, reading it whole: into a new
/// file, or over the streams that are there.
void write(const QStringList& sources, const QString& target);

/// Opens the file and reads every stream with one read; gives the number of bytes.
qint64 read(const QString& file);

} // namespace ours
