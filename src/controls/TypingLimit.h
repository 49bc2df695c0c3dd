#pragma once

#include <QString>

class QInputMethodEvent;
class QKeyEvent;

namespace quillford {

/// The longest text that the user can type or paste into a field, in UTF-16 code units. It binds
/// the user alone: a longer text that the program shows stays whole, and can then only be
/// shortened.
class TypingLimit {
public:
    TypingLimit() = default;

    /// 0 for no limit.
    explicit TypingLimit(int limit) : limit_(limit) {}

    /// As much of the beginning of `insertion` as fits beside the `staying` units of the text that
    /// are not replaced by it. A character of two units is never cut in halves.
    [[nodiscard]] QString fitting(const QString& insertion, qsizetype staying) const;

    /// True when the key would type something, and that does not fit.
    [[nodiscard]] bool refuses(const QKeyEvent& key, qsizetype staying) const;

    /// Cuts what an input method puts into the text.
    void cut(QInputMethodEvent& event, qsizetype staying) const;

private:
    int limit_ = 0;
};

} // namespace quillford
