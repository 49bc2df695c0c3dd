#pragma once

#include "platform/linux/writer/UnoCalls.h"
#include "platform/linux/writer/WriterProcess.h"

#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>

namespace quillford {

/// The way into a LibreOffice process: its desktop, and the context in which its services are made.
class WriterConnection {
public:
    /// Waits until the process answers. Raises `Error` when it ends before or takes too long.
    /// Owns none of its arguments; all outlive it.
    WriterConnection(WriterProcess& process, UnoCalls& call, const QString& programFolder);

    [[nodiscard]] const css::uno::Reference<css::uno::XComponentContext>& context() const {
        return remote_;
    }

    [[nodiscard]] const css::uno::Reference<css::frame::XDesktop2>& desktop() const {
        return desktop_;
    }

    [[nodiscard]] QString version() const;

private:
    /// This program's end of the bridge, and the threads that work there. They are gone with it.
    class LocalEnd {
    public:
        LocalEnd(UnoCalls& call, const QString& programFolder);
        ~LocalEnd();

        LocalEnd(const LocalEnd&) = delete;
        LocalEnd& operator=(const LocalEnd&) = delete;

        [[nodiscard]] const css::uno::Reference<css::uno::XComponentContext>& context() const {
            return context_;
        }

    private:
        UnoCalls& call_;
        css::uno::Reference<css::uno::XComponentContext> context_;
    };

    [[nodiscard]] bool connect(const WriterProcess& process);

    UnoCalls& call_;
    LocalEnd local_; ///< first to come and last to go
    css::uno::Reference<css::uno::XComponentContext> remote_;
    css::uno::Reference<css::frame::XDesktop2> desktop_;
};

} // namespace quillford
