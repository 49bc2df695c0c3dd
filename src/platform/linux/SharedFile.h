#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>

namespace quillford {

/// A small file of the user's that several programs read and change. A reader takes no lock,
/// because a writer replaces the file in one step; writers take turns over a lock file beside it,
/// "NAME.lock". What is being written stands in "NAME.new" until it is whole and on the disk, so
/// that neither a full disk nor a killed program nor a power cut leaves less than the old bytes.
///
/// The file and its folder are made by the first change and, as inventions are secrets until they
/// are filed, can be read by the user alone. A link in the file's place is followed.
class SharedFile {
public:
    /// A file that is larger is none of ours: it is neither read nor written.
    static constexpr qint64 MostBytes = qint64{16} * 1024 * 1024;

    /// Gets the bytes as they stand and returns those that are to take their place.
    using Change = std::function<QByteArray(const QByteArray& before)>;

    /// `name` is what messages call the file ("settings file"); `patience` is how long a change
    /// waits for other programs before it gives up.
    SharedFile(QString path, QString name, std::chrono::milliseconds patience);

    /// All bytes of the file; none when there is no file. Raises `Error` when it is there and
    /// cannot be read.
    [[nodiscard]] QByteArray bytes() const;

    /// Calls `step` once, under the lock, and writes what it returns where that differs. Raises
    /// `Error` before the step when the file cannot be locked or read, or when called inside
    /// another step; after it when the file cannot be written. Whatever the step throws goes to the
    /// caller, and nothing is written.
    void change(const Change& step);

private:
    [[noreturn]] void fail(int number, const QString& reason) const;
    void replaceBy(const QByteArray& bytes) const;
    void writeBeside(const QString& path, const QByteArray& bytes) const;

    QString path_;
    QString name_;
    std::chrono::milliseconds patience_;
    bool changing_ = false;
};

} // namespace quillford
