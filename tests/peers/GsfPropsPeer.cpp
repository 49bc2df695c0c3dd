// Writes a compound file with property sets by another implementation, for tests to read:
//
//     gsf_props_peer FILE

#include <cstdio>
#include <gsf/gsf-doc-meta-data.h>
#include <gsf/gsf-docprop-vector.h>
#include <gsf/gsf-meta-names.h>
#include <gsf/gsf-msole-utils.h>
#include <gsf/gsf-outfile-msole.h>
#include <gsf/gsf-output-stdio.h>
#include <gsf/gsf-timestamp.h>
#include <gsf/gsf-utils.h>

namespace {

void insert(GsfDocMetaData* data, const char* name, GType type, void (*set)(GValue*)) {
    GValue* value = g_new0(GValue, 1);
    g_value_init(value, type);
    set(value);
    gsf_doc_meta_data_insert(data, g_strdup(name), value);
}

void insertAll(GsfDocMetaData* data) {
    insert(data, GSF_META_NAME_TITLE, G_TYPE_STRING, [](GValue* value) {
        g_value_set_string(value, "Folding \xC3\x89"
                                  "asel");
    });
    insert(data, GSF_META_NAME_CREATOR, G_TYPE_STRING,
           [](GValue* value) { g_value_set_string(value, "Ann Ox"); });
    insert(data, GSF_META_NAME_PAGE_COUNT, G_TYPE_INT,
           [](GValue* value) { g_value_set_int(value, 7); });
    insert(data, GSF_META_NAME_DATE_CREATED, GSF_TIMESTAMP_TYPE, [](GValue* value) {
        GsfTimestamp* time = gsf_timestamp_new();
        gsf_timestamp_set_time(time, 1'000'000'000);
        gsf_timestamp_to_value(time, value);
        gsf_timestamp_free(time);
    });
    insert(data, GSF_META_NAME_COMPANY, G_TYPE_STRING,
           [](GValue* value) { g_value_set_string(value, "Ox & Co"); });
    insert(data, GSF_META_NAME_LINE_COUNT, G_TYPE_INT,
           [](GValue* value) { g_value_set_int(value, 123); });
    insert(data, "Client", G_TYPE_STRING,
           [](GValue* value) { g_value_set_string(value, "Nib Ltd"); });
    insert(data, "Checked", G_TYPE_BOOLEAN,
           [](GValue* value) { g_value_set_boolean(value, TRUE); });
}

bool writeSet(GsfOutfile* file, const char* name, const GsfDocMetaData* data, bool isDocument) {
    GsfOutput* stream = gsf_outfile_new_child(file, name, FALSE);
    const bool good = gsf_doc_meta_data_write_to_msole(data, stream, isDocument ? TRUE : FALSE) &&
                      gsf_output_close(stream);
    g_object_unref(stream);
    return good;
}

bool writeFile(const char* path) {
    GsfOutput* output = gsf_output_stdio_new(path, nullptr);
    if (output == nullptr)
        return false;
    GsfOutfile* file = gsf_outfile_msole_new(output);
    GsfDocMetaData* data = gsf_doc_meta_data_new();
    insertAll(data);
    const bool good = writeSet(file, "\05DocumentSummaryInformation", data, true) &&
                      writeSet(file, "\05SummaryInformation", data, false) &&
                      gsf_output_close(GSF_OUTPUT(file));
    g_object_unref(data);
    g_object_unref(file);
    g_object_unref(output);
    return good;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    gsf_init();
    const bool good = writeFile(argv[1]);
    gsf_shutdown();
    if (!good)
        std::fprintf(stderr, "gsf_props_peer: %s could not be written\n", argv[1]);
    return good ? 0 : 1;
}
