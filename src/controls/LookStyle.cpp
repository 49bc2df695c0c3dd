#include "controls/LookStyle.h"

#include "controls/Theme.h"

#include <QPainter>
#include <QStyleOption>

namespace quillford {

namespace {

constexpr double Rounding = 3;
constexpr int ScrollBarWidth = 16;
constexpr int ArrowWidth = 22;

void drawFieldFrame(QPainter& painter, const QRect& rect, const QBrush& back, bool focused) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(focused ? theme::Heading : theme::FieldFrame, 1));
    painter.setBrush(back);
    painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), Rounding, Rounding);
    painter.restore();
}

void drawDownArrow(QPainter& painter, const QRect& rect, const QColor& colour) {
    const QPointF middle = QRectF(rect).center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(
        QPolygonF{middle + QPointF(-4, -2), middle + QPointF(4, -2), middle + QPointF(0, 3)});
    painter.restore();
}

void drawScrollBar(const QStyle& style, const QStyleOptionSlider& bar, QPainter& painter,
                   const QWidget* widget) {
    painter.save();
    painter.fillRect(bar.rect, QColor(240, 243, 246));
    if (bar.state.testFlag(QStyle::State_Enabled) && bar.maximum > bar.minimum) {
        const QRect slider =
            style.subControlRect(QStyle::CC_ScrollBar, &bar, QStyle::SC_ScrollBarSlider, widget);
        const bool pressed = bar.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider) &&
                             bar.state.testFlag(QStyle::State_Sunken);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(pressed ? theme::MutedText : QColor(178, 187, 198));
        painter.drawRoundedRect(QRectF(slider).adjusted(3, 2, -3, -2), 4, 4);
    }
    painter.restore();
}

} // namespace

LookStyle::LookStyle() : QProxyStyle(QStringLiteral("fusion")) {}

void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
    const bool focused = option->state.testFlag(State_HasFocus);
    if (element == PE_PanelLineEdit) {
        // Inside a combo the frame is the combo's own.
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        if (frame && frame->lineWidth > 0)
            drawFieldFrame(*painter, option->rect, option->palette.base(), focused);
        return;
    }
    if (element == PE_Frame && widget && widget->inherits("QPlainTextEdit"))
        return drawFieldFrame(*painter, option->rect, option->palette.base(), focused);
    if (element == PE_FrameFocusRect && widget && widget->inherits("QAbstractScrollArea"))
        return;
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void LookStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    if (element == CE_ComboBoxLabel) {
        // An editable list's text is drawn by its field.
        const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        if (combo && !combo->editable) {
            const QRect rect = subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, widget)
                                   .adjusted(2, 0, 0, 0);
            drawItemText(painter, rect, Qt::AlignVCenter | Qt::AlignLeft, combo->palette,
                         combo->state.testFlag(State_Enabled), combo->currentText, QPalette::Text);
        }
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void LookStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
    if (control == CC_ComboBox) {
        const bool enabled = option->state.testFlag(State_Enabled);
        drawFieldFrame(*painter, option->rect, option->palette.base(),
                       option->state.testFlag(State_HasFocus));
        return drawDownArrow(*painter, subControlRect(control, option, SC_ComboBoxArrow, widget),
                             enabled ? theme::Text : theme::MutedText);
    }
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar && control == CC_ScrollBar)
        return drawScrollBar(*this, *bar, *painter, widget);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect LookStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                SubControl part, const QWidget* widget) const {
    const QRect& whole = option->rect;
    if (control == CC_ComboBox && part == SC_ComboBoxArrow)
        return {whole.right() - ArrowWidth + 1, whole.top(), ArrowWidth, whole.height()};
    if (control == CC_ComboBox && part == SC_ComboBoxEditField)
        return whole.adjusted(3, 2, -ArrowWidth, -2);
    if (control == CC_ScrollBar) {
        // No arrow buttons: the groove is the whole bar.
        if (part == SC_ScrollBarAddLine || part == SC_ScrollBarSubLine)
            return {};
        const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        if (bar && part == SC_ScrollBarGroove)
            return whole;
        if (bar && part != SC_None) {
            const bool upright = bar->orientation == Qt::Vertical;
            const int length = upright ? whole.height() : whole.width();
            const int range = bar->maximum - bar->minimum;
            const int slider =
                range > 0 ? qBound(24, length * bar->pageStep / (range + bar->pageStep), length)
                          : length;
            const int start = sliderPositionFromValue(
                bar->minimum, bar->maximum, bar->sliderPosition, length - slider, bar->upsideDown);
            const auto along = [&](int from, int size) {
                return upright ? QRect(whole.left(), whole.top() + from, whole.width(), size)
                               : QRect(whole.left() + from, whole.top(), size, whole.height());
            };
            if (part == SC_ScrollBarSlider)
                return along(start, slider);
            if (part == SC_ScrollBarSubPage)
                return along(0, start);
            if (part == SC_ScrollBarAddPage)
                return along(start + slider, length - start - slider);
        }
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

int LookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
    if (metric == PM_ScrollBarExtent)
        return ScrollBarWidth;
    if (metric == PM_DefaultFrameWidth && widget && widget->inherits("QPlainTextEdit"))
        return 2;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int LookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const {
    // A list opens under its field, and the wheel's notches do not glide.
    if (hint == SH_ComboBox_Popup)
        return 0;
    // The keys of the form are its own: no letters are underlined in menus or buttons.
    if (hint == SH_UnderlineShortcut)
        return 1;
    return QProxyStyle::styleHint(hint, option, widget, data);
}

} // namespace quillford
