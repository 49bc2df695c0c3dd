#include "storage/GsfSide.h"

#include <QFile>

#include <cstdlib>
#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-infile.h>
#include <gsf/gsf-input-stdio.h>
#include <gsf/gsf-outfile-msole.h>
#include <gsf/gsf-outfile.h>
#include <gsf/gsf-output-stdio.h>
#include <gsf/gsf-utils.h>

namespace gsf {

void write(const QStringList& sources, const QString& target) {
    gsf_init();
    GsfOutput* const file = gsf_output_stdio_new(QFile::encodeName(target).constData(), nullptr);
    GsfOutfile* const root = gsf_outfile_msole_new(file);
    for (qsizetype i = 0; i < sources.size(); ++i) {
        QFile source(sources[i]);
        if (!source.open(QIODevice::ReadOnly))
            std::abort();
        const QByteArray bytes = source.readAll();
        const QByteArray name = "Index " + QByteArray::number(i);
        GsfOutput* const stream = gsf_outfile_new_child(root, name.constData(), FALSE);
        gsf_output_write(stream, static_cast<gsize>(bytes.size()),
                         reinterpret_cast<const guint8*>(bytes.constData()));
        gsf_output_close(stream);
        g_object_unref(stream);
    }
    gsf_output_close(GSF_OUTPUT(root));
    g_object_unref(root);
    g_object_unref(file);
}

qint64 read(const QString& fileName) {
    gsf_init();
    GsfInput* const file = gsf_input_stdio_new(QFile::encodeName(fileName).constData(), nullptr);
    GsfInfile* const root = gsf_infile_msole_new(file, nullptr);
    qint64 total = 0;
    for (int i = 0; i < gsf_infile_num_children(root); ++i) {
        GsfInput* const stream = gsf_infile_child_by_index(root, i);
        const gsf_off_t size = gsf_input_size(stream);
        if (gsf_input_read(stream, static_cast<gsize>(size), nullptr) == nullptr)
            std::abort();
        total += size;
        g_object_unref(stream);
    }
    g_object_unref(root);
    g_object_unref(file);
    return total;
}

} // namespace gsf
