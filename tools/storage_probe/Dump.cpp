#include "storage_probe/Dump.h"

#include "persistence/compound/StorageError.h"
#include "persistence/compound/StorageModes.h"

#include <algorithm>
#include <limits>
#include <utility>

using namespace quillford;

namespace {

/// A file may nest storages as deep as it likes, and the walk is recursive.
constexpr int DeepestLevel = 1000;
constexpr qsizetype HeadLength = 64;
constexpr int BlockLength = 65536;

QByteArray quoted(const QString& text) {
    QByteArray result = "\"";
    for (const QChar unit : text) {
        const char16_t code = unit.unicode();
        if (code < 0x20 || code > 0x7E || code == u'"' || code == u'\\')
            result += "\\u" + QByteArray::number(code, 16).rightJustified(4, '0');
        else
            result += static_cast<char>(code);
    }
    return result + '"';
}

/// FNV-1a of 64 bits.
class Hash {
public:
    void add(const QByteArray& bytes) {
        for (const char byte : bytes)
            value_ = (value_ ^ static_cast<unsigned char>(byte)) * 0x100000001B3ULL;
    }

    [[nodiscard]] QByteArray text() const {
        return QByteArray::number(value_, 16).rightJustified(16, '0');
    }

private:
    quint64 value_ = 0xCBF29CE484222325ULL;
};

class Dumper {
public:
    QByteArray dump(Storage root) {
        out_ = "{\"format\":\"cfb-dump-1\",\"reader\":\"quillford\",\"clsid\":" +
               quoted(root.Stat().CLSID()) + ",";
        writeElements(root, 0);
        return out_ + "}\n";
    }

private:
    void writeElements(Storage& storage, int level) {
        if (level > DeepestLevel)
            throw storageError(StorageCode::InsufficientMemory);
        out_ += "\"elements\":[";
        const char* separator = "";
        for (const VBSTATSTG& element : storage.Elements()) {
            out_ += separator;
            out_ += "\n{\"name\":" + quoted(element.Name()) + ",";
            if (element.StorageType() == VBSTATSTG::StreamElement)
                writeStream(storage.OpenStream(element.Name(), StorageMode::Exclusive));
            else
                writeStorage(storage.OpenStorage(element.Name(), StorageMode::Exclusive), level);
            out_ += "}";
            separator = ",";
        }
        out_ += "]";
    }

    void writeStorage(Storage storage, int level) {
        out_ += "\"type\":\"storage\",\"clsid\":" + quoted(storage.Stat().CLSID()) + ",";
        writeElements(storage, level + 1);
    }

    void writeStream(Stream stream) {
        Hash hash;
        QByteArray head;
        QByteArray block;
        qint64 total = 0;
        while (const qint32 count = stream.ReadBuf(block, BlockLength)) {
            block.truncate(count);
            hash.add(block);
            if (total == 0)
                head = block.left(HeadLength);
            total += count;
        }
        out_ += "\"type\":\"stream\",\"size\":" + QByteArray::number(stream.Stat().Size()) +
                ",\"fnv1a64\":\"" + hash.text() + "\",\"head\":\"" + head.toHex() + '"';
        if (total != stream.Stat().Size())
            out_ += ",\"read\":" + QByteArray::number(total);
    }

    QByteArray out_;
};

quint64 readStorage(Storage storage, int level) {
    if (level > DeepestLevel)
        throw storageError(StorageCode::InsufficientMemory);
    quint64 total = 0;
    for (const VBSTATSTG& element : storage.Elements()) {
        if (element.StorageType() != VBSTATSTG::StreamElement) {
            total +=
                readStorage(storage.OpenStorage(element.Name(), StorageMode::Exclusive), level + 1);
            continue;
        }
        QByteArray bytes;
        Stream stream = storage.OpenStream(element.Name(), StorageMode::Exclusive);
        const qint64 most = std::numeric_limits<qint32>::max();
        total += static_cast<quint64>(
            stream.ReadBuf(bytes, static_cast<qint32>(std::min(element.Size(), most))));
    }
    return total;
}

} // namespace

QByteArray dumpStorage(Storage root) {
    return Dumper().dump(std::move(root));
}

quint64 readAll(Storage root) {
    return readStorage(std::move(root), 0);
}
