#pragma once

#include <QString>

#include <com/sun/star/uno/Sequence.hxx>
#include <initializer_list>
#include <rtl/ustring.hxx>

namespace quillford {

namespace css = com::sun::star;

/// The text as LibreOffice takes it. Half a surrogate pair becomes the replacement character: on
/// its way between the processes it would end the one that receives it.
[[nodiscard]] rtl::OUString toOUString(const QString& text);

/// A text as Writer takes it into a document, where a carriage return alone starts a paragraph. The
/// other control characters, the tab excepted, and those that Writer itself uses to anchor things
/// in a text, are no text and left out.
[[nodiscard]] QString asWriterText(QString text);

[[nodiscard]] QString toQString(const rtl::OUString& text);

template <typename Value>
[[nodiscard]] css::uno::Sequence<Value> sequenceOf(std::initializer_list<Value> values) {
    return css::uno::Sequence<Value>(values.begin(), static_cast<sal_Int32>(values.size()));
}

} // namespace quillford
