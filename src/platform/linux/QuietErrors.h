#pragma once

namespace quillford {

/// Keeps standard error silent for a scope: libraries that tell of damaged data there, past every
/// hook of the toolkit, would put their words between the program's own. Not for use in threads.
class QuietErrors {
public:
    QuietErrors();
    ~QuietErrors();

    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

private:
    int kept_; ///< the real standard error meanwhile, or -1 where it is closed
};

} // namespace quillford
