#pragma once

#include <QString>
#include <QStringList>

/// What a program without a format does: the mark that the others are measured by.
namespace plain {

/// Reads the files one by one and writes their bytes into `target` in writes of 64 KB. With
/// `anew` the target is made, otherwise it is written over in place.
void write(const QStringList& sources, const QString& target, bool anew);

/// Runs `cat` on the file, into nothing.
void readByCat(const QString& file);

} // namespace plain
