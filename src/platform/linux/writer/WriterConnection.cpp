#include "platform/linux/writer/WriterConnection.h"

#include <QElapsedTimer>
#include <QUrl>

#include <com/sun/star/beans/NamedValue.hpp>
#include <com/sun/star/bridge/UnoUrlResolver.hpp>
#include <com/sun/star/configuration/theDefaultProvider.hpp>
#include <com/sun/star/connection/NoConnectException.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <cppuhelper/bootstrap.hxx>
#include <csignal>
#include <rtl/bootstrap.hxx>

namespace quillford {

namespace {

using css::uno::Reference;
using css::uno::UNO_QUERY_THROW;
using rtl::OUString;

/// Without the types of the office its first call would find none and crash.
Reference<css::uno::XComponentContext> localContext(const QString& programFolder) {
    const QString types =
        QUrl::fromLocalFile(programFolder + QStringLiteral("/types/offapi.rdb")).toString();
    rtl::Bootstrap::set("URE_MORE_TYPES", toOUString(types));
    return cppu::defaultBootstrap_InitialComponentContext();
}

/// The bridge writes from threads of its own to a process that may have died. That is an error to
/// be told, and not the end of this program, unless the program has said otherwise itself.
void ignoreBrokenPipes() {
    struct sigaction current = {};
    if (::sigaction(SIGPIPE, nullptr, &current) == 0 && current.sa_handler == SIG_DFL)
        std::signal(SIGPIPE, SIG_IGN);
}

} // namespace

WriterConnection::LocalEnd::LocalEnd(UnoCalls& call, const QString& programFolder)
    : call_(call), context_(call([&] { return localContext(programFolder); })) {
    ignoreBrokenPipes();
}

/// What is raised here about an other end that has died is no news any more.
WriterConnection::LocalEnd::~LocalEnd() {
    try {
        call_([&] {
            const Reference<css::lang::XComponent> component(context_, UNO_QUERY_THROW);
            component->dispose();
        });
    } catch (const Error&) {
        context_.clear();
    }
}

WriterConnection::WriterConnection(WriterProcess& process, UnoCalls& call,
                                   const QString& programFolder)
    : call_(call), local_(call, programFolder) {
    QElapsedTimer time;
    time.start();
    for (call.watchdog().guard(process.processGroup()); !connect(process);
         call.watchdog().guard(process.processGroup())) {
        if (time.hasExpired(call.watchdog().patience().count()))
            throw Error(UnoCalls::Gone,
                        QStringLiteral("LibreOffice did not start within %1 seconds")
                            .arg(static_cast<double>(time.elapsed()) / 1000));
        process.waitForStart();
    }
    desktop_ = call([&] { return css::frame::Desktop::create(remote_); });
}

/// False while nobody listens yet.
bool WriterConnection::connect(const WriterProcess& process) {
    return call_([&] {
        try {
            const Reference<css::bridge::XUnoUrlResolver> resolver =
                css::bridge::UnoUrlResolver::create(local_.context());
            remote_.set(resolver->resolve(toOUString(process.address())), UNO_QUERY_THROW);
        } catch (const css::connection::NoConnectException&) {
            return false;
        }
        return true;
    });
}

QString WriterConnection::version() const {
    return call_([&] {
        const css::beans::NamedValue path("nodepath",
                                          css::uno::Any(OUString("/org.openoffice.Setup/Product")));
        const Reference<css::container::XNameAccess> product(
            css::configuration::theDefaultProvider::get(remote_)->createInstanceWithArguments(
                "com.sun.star.configuration.ConfigurationAccess",
                sequenceOf({css::uno::Any(path)})),
            UNO_QUERY_THROW);
        return toQString(product->getByName("ooSetupVersionAboutBox").get<OUString>());
    });
}

} // namespace quillford
