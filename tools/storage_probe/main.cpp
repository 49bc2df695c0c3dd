#include "persistence/compound/mdlStorage.h"
#include "storage_probe/Dump.h"
#include "storage_probe/Props.h"
#include "storage_probe/Spec.h"

#include <QFile>
#include <QStringList>

#include <csignal>
#include <cstdio>
#include <new>

using namespace quillford;

namespace {

enum Status { Done = 0, Failure = 1, NotThere = 2 };

QByteArray contentOf(const QString& fileName) {
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw Error(Failure, file.errorString(), fileName);
    return file.readAll();
}

Storage createOrOpen(const QString& fileName) {
    bool createProps = false;
    bool overwrite = false;
    return CreateStorageFile(fileName, createProps, false, overwrite);
}

int createProps(const QString& fileName) {
    Storage storage = createOrOpen(fileName);
    const bool made = CreatePropertySets(storage, true);
    storage.Commit(0);
    if (!made)
        throw Error(Failure, QStringLiteral("The property sets could not be made."), fileName);
    return Done;
}

int getProps(const QString& fileName) {
    DocProperties properties;
    properties.BindToFile(fileName);
    const QByteArray text = propsAsText(properties);
    std::fwrite(text.data(), 1, static_cast<std::size_t>(text.size()), stdout);
    return Done;
}

int run(const QStringList& words) {
    const QString call = words.value(0);
    const QString file = words.value(1);
    if (call == u"dump" && words.size() == 2) {
        const QByteArray text = dumpStorage(OpenStorageFile(file));
        std::fwrite(text.data(), 1, static_cast<std::size_t>(text.size()), stdout);
        return Done;
    }
    if (call == u"make" && words.size() == 3) {
        const QByteArray spec = contentOf(words[2]);
        Spec(createOrOpen(file)).apply(spec);
        return Done;
    }
    if (call == u"mutate" && words.size() == 3) {
        Spec(OpenStorageFile(file)).apply(contentOf(words[2]));
        return Done;
    }
    if (call == u"readall" && words.size() == 2) {
        std::printf("%llu\n", static_cast<unsigned long long>(readAll(OpenStorageFile(file))));
        return Done;
    }
    if (call == u"props" && words.size() == 3 && words[2] == u"create")
        return createProps(file);
    if (call == u"props" && words.size() == 3 && words[2] == u"get")
        return getProps(file);
    std::fprintf(stderr, "storage_probe: there is no such call\n");
    return NotThere;
}

} // namespace

int main(int argc, char** argv) {
    // A file that reaches the limit of its size is a failure to be told and not the program's end.
    std::signal(SIGXFSZ, SIG_IGN);
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QFile::decodeName(argv[i]));
    try {
        return run(words);
    } catch (const Error& error) {
        std::fprintf(stderr, "storage_probe: %s: %s (error %lld, 0x%llX)\n",
                     qPrintable(error.source().isEmpty() ? words.value(1) : error.source()),
                     error.what(), static_cast<long long>(error.number()),
                     static_cast<unsigned long long>(error.number()));
        return Failure;
    } catch (const std::bad_alloc&) {
        std::fprintf(stderr, "storage_probe: there is not enough memory\n");
        return Failure;
    }
}
