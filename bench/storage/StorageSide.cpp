#include "storage/StorageSide.h"

#include "persistence/compound/StorageModes.h"
#include "persistence/compound/mdlStorage.h"

#include <QFile>

#include <cstdlib>

using namespace quillford;

namespace ours {

void write(const QStringList& sources, const QString& target) {
    bool createProps = false;
    bool overwrite = false;
    Storage root = CreateStorageFile(target, createProps, true, overwrite);
    Storage pictures = root.CreateStorage(QStringLiteral("Pictures"), StorageMode::Exclusive);
    for (qsizetype i = 0; i < sources.size(); ++i) {
        QFile source(sources[i]);
        if (!source.open(QIODevice::ReadOnly))
            std::abort();
        const QByteArray bytes = source.readAll();
        Stream stream =
            pictures.CreateStream(QStringLiteral("Index %1").arg(i), StorageMode::Exclusive);
        stream.WriteData(sources[i]);
        stream.WriteData(static_cast<qint32>(bytes.size()));
        stream.WriteBuf(bytes);
    }
    root.Commit(0);
}

qint64 read(const QString& file) {
    Storage root = OpenStorageFile(file);
    Storage pictures = root.OpenStorage(QStringLiteral("Pictures"), StorageMode::Exclusive);
    qint64 total = 0;
    QByteArray bytes;
    for (const VBSTATSTG& element : pictures.Elements()) {
        Stream stream = pictures.OpenStream(element.Name(), StorageMode::Exclusive);
        total += stream.ReadBuf(bytes, static_cast<qint32>(element.Size()));
    }
    return total;
}

} // namespace ours
