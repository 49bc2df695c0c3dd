#include "platform/linux/writer/WriterDocument.h"

#include <QRegularExpression>
#include <QUrl>

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/container/XIndexReplace.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/style/XStyle.hpp>
#include <com/sun/star/style/XStyleFamiliesSupplier.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextCursor.hpp>
#include <com/sun/star/text/XTextRange.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <com/sun/star/view/XPrintable.hpp>

namespace quillford {

namespace {

using css::beans::PropertyValue;
using css::uno::Any;
using css::uno::Reference;
using css::uno::Sequence;
using css::uno::UNO_QUERY;
using css::uno::UNO_QUERY_THROW;
using rtl::OUString;

template <typename Value>
PropertyValue property(const char* name, const Value& value) {
    return {OUString::createFromAscii(name), 0, Any(value), css::beans::PropertyState_DIRECT_VALUE};
}

OUString urlOf(const QString& file) {
    return toOUString(QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded));
}

Reference<css::container::XNameAccess> styles(const Reference<css::text::XTextDocument>& document,
                                              const char* family) {
    const Reference<css::style::XStyleFamiliesSupplier> families(document, UNO_QUERY_THROW);
    return {families->getStyleFamilies()->getByName(OUString::createFromAscii(family)),
            UNO_QUERY_THROW};
}

sal_Int32 length(const Reference<css::beans::XPropertySet>& style, const char* name) {
    return style->getPropertyValue(OUString::createFromAscii(name)).get<sal_Int32>();
}

sal_Int32 heightOf(const Reference<css::beans::XPropertySet>& style, const char* isOn,
                   const char* height) {
    const bool stands = style->getPropertyValue(OUString::createFromAscii(isOn)).get<bool>();
    return stands ? length(style, height) : 0;
}

/// The number formats of a list style's levels, in which "%2%" stands for the second level.
void setLevelFormat(const Reference<css::container::XIndexReplace>& levels, sal_Int32 level,
                    const QString& format) {
    static const QRegularExpression number(QStringLiteral("%(\\d)"));
    const OUString pattern = toOUString(QString(format).replace(number, QStringLiteral("%\\1%")));
    auto rules = levels->getByIndex(level).get<Sequence<PropertyValue>>();
    sal_Int32 at = 0;
    while (at < rules.getLength() && rules[at].Name != "ListFormat")
        ++at;
    if (at == rules.getLength())
        rules.realloc(at + 1);
    rules.getArray()[at] = property("ListFormat", pattern);
    levels->replaceByIndex(level, Any(rules));
}

} // namespace

WriterDocument::WriterDocument(const Reference<css::frame::XDesktop2>& desktop, const QString& file,
                               bool asTemplate, const QString& name) {
    const auto how = sequenceOf({property("Hidden", true), property("AsTemplate", asTemplate)});
    document_.set(desktop->loadComponentFromURL(urlOf(file), "_blank", 0, how), UNO_QUERY);
    if (!document_.is())
        throw Error(UnoCalls::Refused, QStringLiteral("is no text document"), name);
    document_->lockControllers();
}

void WriterDocument::save(const QString& file) {
    const Reference<css::frame::XStorable> storable(document_, UNO_QUERY_THROW);
    storable->storeToURL(urlOf(file), sequenceOf({property("FilterName", OUString("MS Word 97")),
                                                  property("Overwrite", true)}));
}

void WriterDocument::print() {
    if (document_->hasControllersLocked())
        document_->unlockControllers();
    const Reference<css::view::XPrintable> printable(document_, UNO_QUERY_THROW);
    OUString printer;
    for (const PropertyValue& value : printable->getPrinter())
        if (value.Name == "Name")
            value.Value >>= printer;
    if (printer.isEmpty())
        throw Error(UnoCalls::Refused, QStringLiteral("there is no printer"));
    printable->print(sequenceOf({property("Wait", true)}));
}

void WriterDocument::close() {
    const Reference<css::util::XCloseable> closeable(document_, UNO_QUERY_THROW);
    closeable->close(true);
}

Reference<css::beans::XPropertySet> WriterDocument::pageStyle() const {
    const Reference<css::text::XText> text = document_->getText();
    const Reference<css::beans::XPropertySet> start(text->createTextCursorByRange(text->getStart()),
                                                    UNO_QUERY_THROW);
    const auto name = start->getPropertyValue("PageStyleName").get<OUString>();
    return {styles(document_, "PageStyles")->getByName(name), UNO_QUERY_THROW};
}

void WriterDocument::setHeader(const QString& text) {
    const Reference<css::beans::XPropertySet> page = pageStyle();
    if (!page->getPropertyValue("HeaderIsOn").get<bool>())
        page->setPropertyValue("HeaderIsOn", Any(true));
    const Reference<css::text::XText> header(page->getPropertyValue("HeaderText"), UNO_QUERY_THROW);
    header->setString(toOUString(asWriterText(text)));
}

void WriterDocument::setListNumberFormat(int list, int level, const QString& format) {
    const Reference<css::container::XNameAccess> all = styles(document_, "NumberingStyles");
    int at = 0;
    for (const OUString& name : all->getElementNames()) {
        const Reference<css::style::XStyle> style(all->getByName(name), UNO_QUERY_THROW);
        if (!style->isUserDefined() || ++at != list)
            continue;
        const Reference<css::beans::XPropertySet> properties(style, UNO_QUERY_THROW);
        const Reference<css::container::XIndexReplace> levels(
            properties->getPropertyValue("NumberingRules"), UNO_QUERY_THROW);
        if (level < 1 || level > levels->getCount())
            break;
        setLevelFormat(levels, level - 1, format);
        properties->setPropertyValue("NumberingRules", Any(levels));
        return;
    }
    throw Error(UnoCalls::Refused,
                QStringLiteral("there is no level %1 of a list %2").arg(level).arg(list));
}

const css::awt::Size& WriterDocument::textArea() {
    if (textArea_)
        return *textArea_;
    const Reference<css::beans::XPropertySet> page = pageStyle();
    const sal_Int32 width =
        length(page, "Width") - length(page, "LeftMargin") - length(page, "RightMargin");
    const sal_Int32 height =
        length(page, "Height") - length(page, "TopMargin") - length(page, "BottomMargin") -
        heightOf(page, "HeaderIsOn", "HeaderHeight") - heightOf(page, "FooterIsOn", "FooterHeight");
    return textArea_.emplace(width, height);
}

} // namespace quillford
