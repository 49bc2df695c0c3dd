#include "platform/linux/desktop/PageSequence.h"

#include <algorithm>

namespace quillford {

QList<int> PageSequence::pages() const {
    QList<int> once;
    for (int page = 1; page <= pageCount; ++page)
        if (ranges.isEmpty() || ranges.contains(page))
            once.append(page);
    if (lastFirst)
        std::reverse(once.begin(), once.end());
    QList<int> all;
    if (collated)
        for (int copy = 0; copy < copies; ++copy)
            all += once;
    else
        for (const int page : once)
            all += QList<int>(copies, page);
    return all;
}

} // namespace quillford
