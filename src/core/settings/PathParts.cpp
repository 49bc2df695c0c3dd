#include "core/settings/PathParts.h"

#include <algorithm>

namespace quillford {

QString getFolderOf(const QString& path) {
    const qsizetype slash = path.lastIndexOf(u'/');
    if (path.startsWith(u'/'))
        return path.first(slash + 1);
    return path.first(std::max(slash, path.lastIndexOf(u'\\')) + 1);
}

bool isDraftPath(const QString& path) {
    return path.contains(QStringLiteral("/Drafts/"));
}

bool isProvisionalDraftPath(const QString& path) {
    return path.contains(QStringLiteral("/Drafts/Provisional Project"));
}

} // namespace quillford
