#include "storage_probe/Spec.h"

#include "persistence/compound/StorageModes.h"
#include "storage_probe/SeedContent.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr quint64 DefaultChunk = 1024 * 1024;

[[noreturn]] void complain(const QString& what) {
    throw Error(1, what);
}

/// Takes the last word off the list, as a number.
quint64 takeNumber(QStringList& words) {
    bool good = false;
    const quint64 number = words.isEmpty() ? 0 : words.takeLast().toULongLong(&good);
    if (!good)
        complain(u"a number is missing"_s);
    return number;
}

/// Code units told as \uXXXX become what they stand for.
QString unescaped(QString text) {
    static const QRegularExpression escape(u"\\\\u([0-9A-Fa-f]{4})"_s);
    for (auto match = escape.match(text); match.hasMatch();
         match = escape.match(text, match.capturedStart() + 1))
        text.replace(match.capturedStart(), match.capturedLength(),
                     QChar(match.captured(1).toUShort(nullptr, 16)));
    return text;
}

} // namespace

struct Spec::Place {
    Storage storage;
    QString name;
};

void Spec::apply(const QByteArray& text) {
    int number = 0;
    for (QString line : QString::fromUtf8(text).split(u'\n')) {
        ++number;
        if (line.endsWith(u'\r'))
            line.chop(1);
        try {
            if (!line.isEmpty() && !line.startsWith(u'#'))
                applyLine(line);
        } catch (const Error& error) {
            throw Error(error.number(), u"line %1: %2"_s.arg(number).arg(error.description()),
                        error.source());
        }
    }
    root_.Commit(0);
}

void Spec::applyLine(const QString& line) {
    QStringList words = line.split(u' ');
    const QString operation = words.takeFirst();
    if (operation == u"storage") {
        const Place place = placeOf(words);
        (void)Storage(place.storage).CreateStorage(place.name, StorageMode::Exclusive);
    } else if (operation == u"stream") {
        stream(words);
    } else if (operation == u"fields") {
        fields(words);
    } else if (operation == u"picture") {
        picture(words);
    } else if (operation == u"write") {
        write(words);
    } else if (operation == u"setsize") {
        setSize(words);
    } else if (operation == u"delete") {
        remove(words);
    } else if (operation == u"rename") {
        rename(words);
    } else if (operation == u"chunk") {
        chunk_ = takeNumber(words);
    } else if (operation == u"commit") {
        root_.Commit(0);
    } else {
        complain(u"no such operation: "_s + operation);
    }
}

Spec::Place Spec::placeOf(const QStringList& words) {
    QStringList names = words.join(u' ').split(u'/');
    Place place{root_, unescaped(names.takeLast())};
    for (const QString& name : names)
        place.storage = place.storage.CreateStorage(unescaped(name), StorageMode::Exclusive);
    return place;
}

Stream Spec::openStream(const QStringList& words) {
    Place place = placeOf(words);
    return place.storage.CreateStream(place.name, StorageMode::Exclusive);
}

void Spec::writeContent(Stream& stream, quint64 seed, quint64 size) const {
    const quint64 chunk = chunk_ == 0 ? DefaultChunk : chunk_;
    const SeedContent content(seed);
    for (quint64 done = 0; done < size; done += chunk) {
        const QByteArray bytes =
            content.bytes(done, static_cast<qsizetype>(std::min(chunk, size - done)));
        stream.write(std::as_bytes(std::span(bytes)));
    }
}

void Spec::stream(QStringList words) {
    const quint64 seed = takeNumber(words);
    const quint64 size = takeNumber(words);
    Stream stream = openStream(words);
    writeContent(stream, seed, size);
}

void Spec::fields(QStringList words) {
    const SeedContent content(takeNumber(words));
    const auto units = static_cast<qsizetype>(takeNumber(words));
    const auto count = static_cast<quint32>(takeNumber(words));
    Stream stream = openStream(words);
    for (quint32 i = 0; i < count; ++i)
        stream.WriteData(content.text(i, units));
}

void Spec::picture(QStringList words) {
    const QString source = words.isEmpty() ? QString() : words.takeLast();
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly))
        complain(u"cannot read "_s + source);
    const QByteArray bytes = file.readAll();
    Stream stream = openStream(words);
    stream.WriteData(source);
    stream.WriteData(static_cast<qint32>(bytes.size()));
    stream.write(std::as_bytes(std::span(bytes)));
}

void Spec::write(QStringList words) {
    const quint64 seed = takeNumber(words);
    const quint64 size = takeNumber(words);
    const quint64 offset = takeNumber(words);
    Stream stream = openStream(words);
    stream.SSeek(static_cast<qint64>(offset));
    writeContent(stream, seed, size);
}

void Spec::setSize(QStringList words) {
    const quint64 size = takeNumber(words);
    openStream(words).SetSize(static_cast<qint64>(size));
}

void Spec::remove(const QStringList& words) {
    Place place = placeOf(words);
    place.storage.DestroyElement(place.name);
}

void Spec::rename(const QStringList& words) {
    const QStringList sides = words.join(u' ').split(u" => "_s);
    if (sides.size() != 2)
        complain(u"a rename is PATH => NAME"_s);
    Place place = placeOf({sides[0]});
    place.storage.RenameElement(place.name, unescaped(sides[1]));
}
