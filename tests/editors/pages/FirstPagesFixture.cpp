#include "editors/pages/FirstPagesFixture.h"

#include "controls/FormCombo.h"
#include "controls/LineField.h"
#include "controls/TextField.h"
#include "editors/pages/PageIntroduction.h"

#include <QApplication>
#include <QCheckBox>
#include <QTest>

namespace quillford {

FirstPagesFixture::FirstPagesFixture() {
    new PageIntroduction(addContainer(IntroductionTab), bound);
    inventors = new PageInventors(addContainer(InventorsTab), fields, bound, order);
    objects = new PageObjects(addContainer(ObjectsTab), fields, bound, order);
    join({inventors, objects, nullptr, nullptr, nullptr, nullptr}, screen);
    go(IntroductionTab);
}

QString FirstPagesFixture::shown(const QString& name) const {
    QWidget* const field = &control(name);
    if (const auto* line = qobject_cast<LineField*>(field))
        return line->text();
    if (const auto* text = qobject_cast<TextField*>(field))
        return text->text();
    return control<FormCombo>(name).text();
}

bool FirstPagesFixture::isTinted(const QString& name) const {
    QWidget* const field = &control(name);
    if (const auto* line = qobject_cast<LineField*>(field))
        return line->isTinted();
    if (const auto* text = qobject_cast<TextField*>(field))
        return text->isTinted();
    return control<FormCombo>(name).isTinted();
}

void FirstPagesFixture::click(const QString& name) {
    auto& box = control<QCheckBox>(name);
    box.setFocus(Qt::MouseFocusReason);
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box.height() / 2));
}

QString FirstPagesFixture::pressTab() {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    return focused();
}

QString FirstPagesFixture::pressBacktab() {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    return focused();
}

QString FirstPagesFixture::focused() const {
    const QWidget* const focus = QApplication::focusWidget();
    return focus ? focus->objectName() : QString();
}

QStringList FirstPagesFixture::clipped(const QWidget& panel) {
    QStringList found;
    for (const QLabel* label : panel.findChildren<QLabel*>())
        if (!label->text().isEmpty() && !label->wordWrap() &&
            label->fontMetrics().horizontalAdvance(label->text()) > label->width())
            found.append(label->objectName());
    return found;
}

} // namespace quillford
