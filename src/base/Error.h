#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

namespace quillford {

/// The one failure of the program. It is raised in the storage layer, the template engines and the
/// readers of files, and trapped where the behaviour of the calling operation says so; it never
/// leaves an event handler or a timer.
class Error : public std::exception {
public:
    /// What `offset()` answers when the failure has no place in a file.
    static constexpr qint64 NoOffset = -1;

    /// @param number       the failure's number: a result code of the platform's storage, or one of
    ///                     the program's own
    /// @param description  one sentence for the user, without a line end
    /// @param source       the part of the program or the thing that failed; may be empty
    /// @param offset       the byte in the file at which the failure was found
    Error(qint64 number, QString description, QString source = {}, qint64 offset = NoOffset);

    [[nodiscard]] qint64 number() const noexcept { return number_; }

    [[nodiscard]] const QString& description() const noexcept { return description_; }

    [[nodiscard]] const QString& source() const noexcept { return source_; }

    [[nodiscard]] qint64 offset() const noexcept { return offset_; }

    /// The description in UTF-8, for test output and debuggers. Owned by the error.
    [[nodiscard]] const char* what() const noexcept override { return what_.constData(); }

private:
    qint64 number_;
    QString description_;
    QString source_;
    qint64 offset_;
    QByteArray what_;
};

} // namespace quillford
