#pragma once

#include <QString>
#include <QStringList>

/// Another program of the format, for comparison.
namespace gsf {

void write(const QStringList& sources, const QString& target);
qint64 read(const QString& file);

} // namespace gsf
