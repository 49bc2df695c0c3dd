#include "platform/linux/writer/WriterPicture.h"

#include <QUrl>

#include <algorithm>
#include <cmath>
#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/graphic/GraphicProvider.hpp>
#include <com/sun/star/graphic/XGraphic.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/text/TextContentAnchorType.hpp>

namespace quillford {

namespace {

using css::awt::Size;
using css::uno::Any;
using css::uno::Reference;
using css::uno::UNO_QUERY_THROW;

Reference<css::graphic::XGraphic> readGraphic(const Reference<css::uno::XComponentContext>& context,
                                              const QString& file) {
    css::beans::PropertyValue url;
    url.Name = "URL";
    url.Value <<= toOUString(QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded));
    return css::graphic::GraphicProvider::create(context)->queryGraphic(sequenceOf({url}));
}

/// In hundredths of a millimetre.
Size sizeOf(const Reference<css::graphic::XGraphic>& graphic) {
    constexpr int HundredthsOfInch = 2540;
    constexpr int PixelsOfInch = 96;
    const Reference<css::beans::XPropertySet> properties(graphic, UNO_QUERY_THROW);
    const auto size = properties->getPropertyValue("Size100thMM").get<Size>();
    if (size.Width > 0 && size.Height > 0)
        return size;
    const auto pixels = properties->getPropertyValue("SizePixel").get<Size>();
    return {std::max(1, pixels.Width * HundredthsOfInch / PixelsOfInch),
            std::max(1, pixels.Height * HundredthsOfInch / PixelsOfInch)};
}

Size fitted(Size size, Size area) {
    const double scale = std::min({1.0, static_cast<double>(area.Width) / size.Width,
                                   static_cast<double>(area.Height) / size.Height});
    const auto scaled = [scale](sal_Int32 length) {
        return std::max(1, static_cast<sal_Int32>(std::floor(length * scale)));
    };
    return {scaled(size.Width), scaled(size.Height)};
}

/// A picture stands on the line of its paragraph; what letters have below that line needs room too.
Size roomForPicture(Size textArea) {
    constexpr sal_Int32 BelowTheLine = 150;
    return {textArea.Width, textArea.Height - BelowTheLine};
}

} // namespace

Reference<css::text::XTextContent>
makePicture(WriterDocument& document, const Reference<css::uno::XComponentContext>& context,
            const QString& file, const QString& name) {
    const Reference<css::graphic::XGraphic> graphic = readGraphic(context, file);
    if (!graphic.is())
        throw Error(UnoCalls::Refused, QStringLiteral("is no picture"), name);
    const Size size = fitted(sizeOf(graphic), roomForPicture(document.textArea()));
    const Reference<css::lang::XMultiServiceFactory> maker(document.text(), UNO_QUERY_THROW);
    const Reference<css::beans::XPropertySet> picture(
        maker->createInstance("com.sun.star.text.TextGraphicObject"), UNO_QUERY_THROW);
    picture->setPropertyValue("AnchorType", Any(css::text::TextContentAnchorType_AS_CHARACTER));
    picture->setPropertyValue("Graphic", Any(graphic));
    picture->setPropertyValue("Width", Any(size.Width));
    picture->setPropertyValue("Height", Any(size.Height));
    return {picture, UNO_QUERY_THROW};
}

} // namespace quillford
