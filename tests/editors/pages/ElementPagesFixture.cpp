#include "editors/pages/ElementPagesFixture.h"

namespace quillford {

ElementPagesFixture::ElementPagesFixture() {
    makeIndex();
    mainElements = new PageMainElements(addContainer(4), fields, bound, order, *index);
    subElements = new PageSubElements(addContainer(5), fields, bound, order);
    descriptions = new PageDescriptions(addContainer(6), fields, bound, order, measure,
                                        [this] { subElements->stackSubElements(); });
    join({nullptr, nullptr, nullptr, mainElements, subElements, descriptions}, *index);
    columns->layouts.clear();
}

void ElementPagesFixture::makeIndex() {
    auto* const place = new QWidget(&form());
    place->setObjectName(QStringLiteral("picIndexContainer"));
    place->setGeometry(728, 370, 240, 182);
    auto* const view = new QWidget(place);
    view->setObjectName(QStringLiteral("picIndexPrintFrm"));
    view->setGeometry(14, 32, 204, 148);
    auto* const bar = new QScrollBar(place);
    bar->setObjectName(QStringLiteral("VScroll1"));
    bar->setGeometry(222, 30, 16, 150);
    auto* const print = new QWidget(place);
    print->setObjectName(QStringLiteral("imgPrint"));
    print->setGeometry(210, 10, 16, 16);
    index = new ElementIndexPanel({*place, *view, *bar, *print}, fields, measure,
                                  QtTextMeasure::font(TextWeight::Regular));
}

void ElementPagesFixture::clickCount(int count) {
    choose(QStringLiteral("cboMainElementNum"), QString::number(count));
}

void ElementPagesFixture::chooseCount(int count) {
    clickCount(count);
    waitForLayout();
}

QString ElementPagesFixture::indexText() const {
    return control(QStringLiteral("picIndexOfMainElementD")).accessibleDescription();
}

} // namespace quillford
