#pragma once

#include "platform/SettingsStore.h"

#include <QByteArray>

#include <chrono>

namespace quillford {

/// The settings in one text file (see `SettingsText`). A reader takes no lock, because a writer
/// replaces the file in one step; writers take turns over a lock file beside it, "NAME.lock". What
/// is being written stands in "NAME.new" until it is whole and on the disk, so that neither a full
/// disk nor a killed program nor a power cut leaves less than the old values.
///
/// The file and its folder are made by the first change and, as inventions are secrets until they
/// are filed, can be read by the user alone. A link in the file's place is followed.
class FileSettingsStore final : public SettingsStore {
public:
    /// How long `change` waits for other programs before it gives up.
    static constexpr std::chrono::milliseconds Patience{5000};

    /// A file that is larger is none of ours: it is neither read nor written.
    static constexpr qint64 MostBytes = qint64{16} * 1024 * 1024;

    explicit FileSettingsStore(QString path, std::chrono::milliseconds patience = Patience);

    void look(const Look& step) const override;
    void change(const Change& step) override;

private:
    [[nodiscard]] QByteArray stored() const;
    void replaceBy(const QByteArray& bytes) const;

    QString path_;
    std::chrono::milliseconds patience_;
    bool changing_ = false;
};

} // namespace quillford
