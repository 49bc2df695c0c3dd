#pragma once

#include "persistence/compound/Storage.h"

#include <QByteArray>

/// The tree of a compound file as JSON, with a hash and the first bytes of every stream. Raises the
/// errors of the storage.
[[nodiscard]] QByteArray dumpStorage(quillford::Storage root);

/// Reads every stream below `root`, each with one read, and gives the number of bytes in all.
[[nodiscard]] quint64 readAll(quillford::Storage root);
