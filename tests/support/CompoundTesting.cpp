#include "support/CompoundTesting.h"

using namespace quillford;

QByteArray testBytes(qsizetype length, int seed) {
    QByteArray bytes(length, '\0');
    auto value = static_cast<quint32>(seed) * 2654435761U + 12345U;
    for (char& byte : bytes) {
        value = value * 1664525U + 1013904223U;
        byte = static_cast<char>(value >> 24);
    }
    return bytes;
}

void writeStream(Storage& storage, const QString& name, const QByteArray& bytes) {
    Stream stream = storage.CreateStream(name, Mode);
    ASSERT_EQ(stream.WriteBuf(bytes), bytes.size());
}

QByteArray readStream(Storage& storage, const QString& name) {
    Stream stream = storage.OpenStream(name, Mode);
    QByteArray bytes;
    const qint32 count = stream.ReadBuf(bytes, static_cast<qint32>(stream.Stat().Size()));
    EXPECT_EQ(count, stream.Stat().Size());
    return bytes;
}
