#include "gsf_peer.h"

#include "Fnv.h"
#include "storage_probe/SeedContent.h"

#include <QFile>
#include <QStringList>

#include <cstdio>
#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-infile.h>
#include <gsf/gsf-input-stdio.h>
#include <gsf/gsf-outfile-msole.h>
#include <gsf/gsf-outfile.h>
#include <gsf/gsf-output-stdio.h>
#include <gsf/gsf-utils.h>
#include <map>

namespace {

void dumpStream(GsfInput* input, const QByteArray& path) {
    constexpr gsf_off_t Block = 65536;
    Fnv hash;
    for (gsf_off_t left = gsf_input_remaining(input); left > 0; left = gsf_input_remaining(input)) {
        const gsf_off_t count = left < Block ? left : Block;
        const guint8* const bytes = gsf_input_read(input, static_cast<size_t>(count), nullptr);
        if (bytes == nullptr) {
            std::printf("unreadable\t0\t0\t%s\n", path.constData());
            return;
        }
        hash.add(bytes, static_cast<size_t>(count));
    }
    std::printf("stream\t%lld\t%016llx\t%s\n", static_cast<long long>(gsf_input_size(input)),
                static_cast<unsigned long long>(hash.value()), path.constData());
}

void dumpStorage(GsfInfile* storage, const QByteArray& path) {
    for (int i = 0; i < gsf_infile_num_children(storage); ++i) {
        GsfInput* const child = gsf_infile_child_by_index(storage, i);
        if (child == nullptr)
            continue;
        const QByteArray childPath = path + gsf_infile_name_by_index(storage, i);
        if (GSF_IS_INFILE(child) && gsf_infile_num_children(GSF_INFILE(child)) >= 0) {
            std::printf("storage\t0\t0\t%s\n", childPath.constData());
            dumpStorage(GSF_INFILE(child), childPath + '/');
        } else {
            dumpStream(child, childPath);
        }
        g_object_unref(child);
    }
}

/// The storages that are being written, by path; they are closed from the deepest one up.
using Folders = std::map<QString, GsfOutfile*>;

GsfOutfile* folder(Folders& folders, const QString& path) {
    if (const auto found = folders.find(path); found != folders.end())
        return found->second;
    GsfOutfile* const parent = folder(folders, path.section(u'/', 0, -2));
    auto* const made = GSF_OUTFILE(
        gsf_outfile_new_child(parent, path.section(u'/', -1).toUtf8().constData(), TRUE));
    return folders[path] = made;
}

void writeStream(GsfOutfile* parent, const QString& name, quint64 size, quint64 seed) {
    GsfOutput* const stream = gsf_outfile_new_child(parent, name.toUtf8().constData(), FALSE);
    const QByteArray bytes = SeedContent(seed).bytes(0, static_cast<qsizetype>(size));
    gsf_output_write(stream, size, reinterpret_cast<const guint8*>(bytes.constData()));
    gsf_output_close(stream);
    g_object_unref(stream);
}

void applyLine(Folders& folders, const QString& line) {
    QStringList words = line.split(u' ');
    const QString operation = words.takeFirst();
    if (operation == u"storage") {
        folder(folders, words.join(u' '));
        return;
    }
    const quint64 seed = words.takeLast().toULongLong();
    const quint64 size = words.takeLast().toULongLong();
    const QString path = words.join(u' ');
    writeStream(folder(folders, path.section(u'/', 0, -2)), path.section(u'/', -1), size, seed);
}

} // namespace

int dumpWithGsf(const char* fileName) {
    gsf_init();
    GsfInput* const file = gsf_input_stdio_new(fileName, nullptr);
    GsfInfile* const root = file == nullptr ? nullptr : gsf_infile_msole_new(file, nullptr);
    if (root == nullptr)
        return 1;
    dumpStorage(root, QByteArray());
    g_object_unref(root);
    g_object_unref(file);
    return 0;
}

int makeWithGsf(const char* fileName, const char* specName, int sectorSize) {
    gsf_init();
    QFile spec(QString::fromLocal8Bit(specName));
    GsfOutput* const file = gsf_output_stdio_new(fileName, nullptr);
    if (file == nullptr || !spec.open(QIODevice::ReadOnly))
        return 1;
    Folders folders;
    folders[QString()] = gsf_outfile_msole_new_full(file, static_cast<guint>(sectorSize), 64);
    for (const QString& line : QString::fromUtf8(spec.readAll()).split(u'\n', Qt::SkipEmptyParts))
        applyLine(folders, line);
    for (auto next = folders.rbegin(); next != folders.rend(); ++next) {
        gsf_output_close(GSF_OUTPUT(next->second));
        g_object_unref(next->second);
    }
    g_object_unref(file);
    return 0;
}
