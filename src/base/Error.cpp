#include "base/Error.h"

#include <utility>

namespace quillford {

Error::Error(qint64 number, QString description, QString source, qint64 offset)
    : number_(number),
      description_(std::move(description)),
      source_(std::move(source)),
      offset_(offset),
      what_(description_.toUtf8()) {}

} // namespace quillford
