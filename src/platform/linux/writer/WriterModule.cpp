#include "platform/linux/WriterStart.h"
#include "platform/linux/writer/WriterApplication.h"

/// The one name by which the program knows this module.
extern "C" Q_DECL_EXPORT quillford::WordApplication*
quillfordStartWriter(const quillford::WriterStart& start) {
    return new quillford::WriterApplication(start);
}
