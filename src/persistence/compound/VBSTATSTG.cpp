#include "persistence/compound/VBSTATSTG.h"

#include <utility>

namespace quillford {

void VBSTATSTG::SetStatData(QString name, Type type, qint64 size, const ClassId& classId) {
    name_ = std::move(name);
    type_ = type;
    size_ = size;
    classId_ = classId;
}

} // namespace quillford
