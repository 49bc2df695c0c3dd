#pragma once

#include "base/Error.h"
#include "platform/linux/writer/UnoValues.h"
#include "platform/linux/writer/Watchdog.h"

#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/uno/Exception.hpp>

namespace quillford {

/// The way of every call into LibreOffice. It is watched, and what it raises becomes an `Error`:
/// an exception of LibreOffice's that nobody catches would end the program, since it is none of
/// the standard library's.
class UnoCalls {
public:
    static constexpr int Refused = 4605; ///< the word processor does not do that
    static constexpr int Gone = 462;     ///< there is no word processor any more

    explicit UnoCalls(std::chrono::milliseconds patience) : watchdog_(patience) {}

    [[nodiscard]] Watchdog& watchdog() noexcept { return watchdog_; }

    template <typename Call>
    auto operator()(Call call) {
        const Wait wait(watchdog_);
        try {
            return call();
        } catch (const css::lang::DisposedException&) {
            raiseGone();
        } catch (const css::uno::Exception& exception) {
            if (watchdog_.hasKilled())
                raiseGone();
            throw Error(Refused, QStringLiteral("LibreOffice: ") + toQString(exception.Message));
        }
    }

private:
    struct Wait {
        explicit Wait(Watchdog& dog) : watchdog(dog) { watchdog.startWait(); }

        ~Wait() { watchdog.endWait(); }

        Wait(const Wait&) = delete;
        Wait& operator=(const Wait&) = delete;

        Watchdog& watchdog;
    };

    [[noreturn]] void raiseGone() const {
        throw Error(Gone, watchdog_.hasKilled()
                              ? QStringLiteral("LibreOffice did not answer within %1 seconds")
                                    .arg(static_cast<double>(watchdog_.patience().count()) / 1000)
                              : QStringLiteral("LibreOffice has ended unexpectedly"));
    }

    Watchdog watchdog_;
};

} // namespace quillford
