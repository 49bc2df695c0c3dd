#pragma once

#include "persistence/compound/ClassId.h"

#include <QString>

namespace quillford {

/// What an element was when it was looked at: a snapshot that is never refreshed.
class VBSTATSTG {
public:
    enum Type : qint32 { StorageElement = 1, StreamElement = 2 };

    /// A description of nothing: no name, type 0.
    VBSTATSTG() = default;

    /// The element's name; of a file's root the name that it was opened by.
    [[nodiscard]] const QString& Name() const { return name_; }

    /// The class as braced text of 38 characters; all digits 0 when the element has none.
    [[nodiscard]] QString CLSID() const { return classId_.toText(); }

    /// 1 for a storage, 2 for a stream.
    [[nodiscard]] qint32 StorageType() const { return type_; }

    /// The size in bytes; 0 for a storage.
    [[nodiscard]] qint64 Size() const { return size_; }

    /// Takes over a description. For this layer alone.
    void SetStatData(QString name, Type type, qint64 size, const ClassId& classId);

private:
    QString name_;
    qint32 type_ = 0;
    qint64 size_ = 0;
    ClassId classId_;
};

} // namespace quillford
