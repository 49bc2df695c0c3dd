#pragma once

#include "controls/Theme.h"
#include "editors/binding/FieldGuidance.h"
#include "editors/columns/CountTimers.h"
#include "editors/pages/SectionColumns.h"
#include "editors/rules/FieldChangeSteps.h"
#include "editors/rules/TabWrap.h"
#include "platform/linux/QtPictureReader.h"
#include "platform/linux/QtTextMeasure.h"
#include "support/FakePrompts.h"
#include "support/RecordingScreen.h"

#include <QApplication>
#include <QLabel>
#include <QScrollBar>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillford {

/// A new project under the page of Section 4, with everything behind it but the files of a project:
/// what is typed and clicked here has the effects that it has in the program. Pictures are real
/// files, decoded by the real reader.
class FiguresPageFixture : public testing::Test {
protected:
    FiguresPageFixture();
    ~FiguresPageFixture() override;

    FiguresPageFixture(const FiguresPageFixture&) = delete;
    FiguresPageFixture& operator=(const FiguresPageFixture&) = delete;

    static constexpr int FiguresTab = 3;

    /// The control with this name, "txtFigureDetail(2)"; a name that is not there fails the test.
    template <typename Control = QWidget>
    [[nodiscard]] Control& control(const QString& name) const {
        auto* const found = form_.findChild<Control*>(name);
        if (!found)
            throw std::runtime_error("there is no " + name.toStdString());
        return *found;
    }

    template <typename Control = QWidget>
    [[nodiscard]] Control& control(QStringView name, int figure) const {
        return control<Control>(controlName(name, figure));
    }

    [[nodiscard]] bool exists(QStringView name, int figure) const {
        return form_.findChild<QWidget*>(controlName(name, figure)) != nullptr;
    }

    [[nodiscard]] QString label(QStringView name, int figure) const {
        return control<QLabel>(name, figure).text();
    }

    [[nodiscard]] QScrollBar& vscroll() const {
        return control<QScrollBar>(QStringLiteral("vscroll(2)"));
    }

    /// Clicks into a field and types at its end.
    void type(const QString& name, const QString& text);

    /// Chooses a row of a list, also the one that stands already.
    void choose(const QString& name, const QString& row);

    /// The same in the list of counts, without and with the wait for the layout that follows.
    void clickCount(int count);
    void chooseCount(int count);
    void waitForLayout();

    /// Clicks the button, and chooses this file in the dialog.
    void browse(const QString& path, int figure = 0);
    void remove(int figure);

    /// The focus comes to a control by the Tab key.
    void tabTo(QStringView name, int figure) { control(name, figure).setFocus(Qt::TabFocusReason); }

    /// A picture of this size in the test's folder, black with a white lower half.
    [[nodiscard]] QString picture(const QString& name, QSize pixels,
                                  const char* format = "PNG") const;
    [[nodiscard]] QString file(const QString& name, const QByteArray& bytes) const;

    /// What stands in the preview's square, as it is painted; no size when nothing does.
    [[nodiscard]] QImage preview(int figure = 0) const;
    [[nodiscard]] QRect previewPlace(int figure = 0) const;

    /// Every two controls of a panel or page that lie over each other, and all that stick out of
    /// it. Frames and what stands in their line are meant to.
    [[nodiscard]] static QStringList crowded(const QWidget& panel);

    [[nodiscard]] QWidget& container() { return container_; }

    QTemporaryDir folder;
    ProjectFields fields;
    ProjectState state;
    FocusOrder order;
    FakePrompts prompts;

private:
    void connectSteps();

    /// Comes before the first widget, which takes its font from the application.
    struct Look {
        Look() { theme::apply(*qApp); }
    } look_;

    QWidget form_;
    QWidget container_{&form_};
    QtTextMeasure measure_;
    QtPictureReader pictures_;

protected:
    BoundFields bound{fields};
    PageFigures page{container_, fields, bound, order, {pictures_, pictures_, prompts}};
    SectionColumns columns{{nullptr, nullptr, &page, nullptr, nullptr, nullptr}, bound};
    CallLog log;
    RecordingScreen screen{fields, log};
    FieldGuidance guidance{fields, state, bound,
                           [this](const PanelScroll& to) { columns.scroll(to); }};
    ContactMirror mirror{fields, state, prompts, bound, order};
    FieldChangeSteps steps{fields, state, mirror, bound, screen, screen, measure_};
    TabWrap wrap{fields, screen, order};
    CountTimers timers{fields, bound, screen, columns};
};

} // namespace quillford
