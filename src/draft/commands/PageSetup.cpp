#include "draft/commands/PageSetup.h"

#include "core/settings/SettingsNames.h"

namespace quillford {

namespace {

constexpr QStringView HeaderName = u"header";
constexpr QStringView FooterName = u"footer";

QString read(const Settings& settings, QStringView name) {
    return settings.regRead(Hive::CurrentUser, settingsNames::PageSetupKey, name);
}

} // namespace

void PageSetup::save() {
    if (!savedPrintHeader_.isEmpty() || !savedPrintFooter_.isEmpty())
        return;
    savedPrintFooter_ = read(settings_, FooterName);
    savedPrintHeader_ = read(settings_, HeaderName);
}

void PageSetup::setForDraft() {
    write({}, Footer.toString());
}

void PageSetup::setEmpty() {
    write({}, {});
}

void PageSetup::applyTo(PrintJob& job) const {
    job.header = read(settings_, HeaderName);
    job.footer = read(settings_, FooterName);
}

void PageSetup::restore() {
    write(savedPrintHeader_, savedPrintFooter_);
}

void PageSetup::write(const QString& header, const QString& footer) {
    settings_.regWrite(Hive::CurrentUser, settingsNames::PageSetupKey, HeaderName, header);
    settings_.regWrite(Hive::CurrentUser, settingsNames::PageSetupKey, FooterName, footer);
}

} // namespace quillford
