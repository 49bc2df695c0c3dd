#include "BareWidgets.h"
#include "PairedTimes.h"
#include "base/Error.h"
#include "controls/Theme.h"
#include "editors/pages/PageFigures.h"
#include "editors/pages/PageInventors.h"
#include "editors/pages/PageObjects.h"
#include "platform/linux/QtPictureReader.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <vector>

/// The repeated panels of Sections 2 to 4: a count that goes from one panel to the most and back,
/// beside a bare loop that makes and destroys as many of the same widgets. Then what a key press in
/// the last field of the largest page takes, until it is painted.
namespace quillford {

namespace {

constexpr double MostTimesBare = 2;
constexpr double MostMilliseconds = 16;
constexpr int Keys = 2000;

/// The pages ask nothing here.
class NoPrompts final : public UserPrompts {
public:
    void showMessage(Icon, const QString&, const QString&) override { unasked(); }

    bool askYesNo(Icon, const QString&, const QString&) override { return unasked(), false; }

    Answer askYesNoCancel(Icon, const QString&, const QString&) override {
        return unasked(), Answer::Cancel;
    }

    QString chooseFileToOpen(const FileQuestion&) override { return unasked(), QString(); }

    QString chooseFileToSave(const FileQuestion&) override { return unasked(), QString(); }

    bool showMsgWindow(const NotAgainChanged&) override { return unasked(), false; }

    void showTab4MsgWindow(const NotAgainChanged&) override { unasked(); }

    ExportChoice showExportToFileMsgWindow(bool) override { return unasked(), ExportChoice(); }

private:
    static void unasked() { throw std::logic_error("a page asked something"); }
};

/// Shows in a control whatever its field becomes, as the program does.
class Shown final : public FieldObserver {
public:
    explicit Shown(BoundFields& bound) : bound_(bound) {}

    void fieldChanged(FieldId field, int index) override { bound_.showText({field, index}); }

private:
    BoundFields& bound_;
};

/// A window with a page for a new project.
template <typename Page>
struct ShownPage {
    template <typename... Rest>
    explicit ShownPage(Rest&&... rest) : page(panel, fields, bound, order, rest...) {
        fields.setObserver(&shown);
        panel.show();
        QApplication::setActiveWindow(&panel);
        QCoreApplication::processEvents();
    }

    ~ShownPage() { fields.setObserver(nullptr); }

    ShownPage(const ShownPage&) = delete;
    ShownPage& operator=(const ShownPage&) = delete;

    QWidget panel;
    ProjectFields fields;
    BoundFields bound{fields};
    Shown shown{bound};
    FocusOrder order;
    Page page;
};

/// At once, and not at the next beat of the screen, which would fall on either side by chance.
void paint(QWidget& widget) {
    QCoreApplication::processEvents();
    widget.repaint();
}

template <typename Page>
void benchCounts(const char* what, ShownPage<Page>& ours, void (Page::*layOut)(int), int most) {
    QWidget window;
    window.resize(ours.panel.size());
    window.show();
    (ours.page.*layOut)(most);
    const PairedTimes times = measuredInTurns(
        [&] {
            (ours.page.*layOut)(1);
            (ours.page.*layOut)(most);
            paint(ours.panel);
        },
        [&] {
            const QWidget& original = ours.page.column().panel(most - 1);
            std::vector<std::unique_ptr<QWidget>> panels;
            for (int i = 1; i < most; ++i) {
                panels.push_back(bareCopy(original, window));
                panels.back()->move(0, i * original.height());
                panels.back()->show();
            }
            paint(window);
        });
    std::printf("%-26s %-14s %10.2f %10.2f %6.2f  at most %.1f, %s\n", what, "page / bare",
                times.ours / 1000, times.peer / 1000, times.ratio(), MostTimesBare,
                times.ratio() <= MostTimesBare ? "met" : "missed");
}

template <typename Page>
void benchKeys(ShownPage<Page>& ours, FieldPlace last) {
    QWidget* field = ours.bound.control(last);
    field->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    std::vector<double> times;
    for (int i = 0; i < Keys; ++i) {
        QElapsedTimer time;
        time.start();
        QKeyEvent press(QEvent::KeyPress, i % 6 == 5 ? Qt::Key_Space : Qt::Key_A, Qt::NoModifier,
                        i % 6 == 5 ? QStringLiteral(" ") : QStringLiteral("a"));
        QCoreApplication::sendEvent(field, &press);
        paint(*field);
        times.push_back(static_cast<double>(time.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    if (ours.fields.at(last.field, last.index).text().size() != Keys)
        throw Error(0, QStringLiteral("keys were lost"), controlName(last));
    const double p99 = times[Keys * 99 / 100];
    std::printf("%-26s %-14s %10.2f %10.2f         below %.0f, %s\n", qPrintable(controlName(last)),
                "a key press", times[Keys / 2], p99, MostMilliseconds,
                p99 < MostMilliseconds ? "met" : "missed");
}

void benchAll() {
    NoPrompts prompts;
    QtPictureReader pictures;
    ShownPage<PageInventors> inventors;
    ShownPage<PageObjects> objects;
    ShownPage<PageFigures> figures(PageFigures::Desktop{pictures, pictures, prompts});
    figures.fields.cboFiguresNum.setText(QStringLiteral("50"));
    std::printf("%-26s %-14s %10s %10s %6s  %s\n", "panels, 1 to most and back", "ours / peer",
                "ours [ms]", "peer [ms]", "ratio", "aim");
    benchCounts("inventors, 8", inventors, &PageInventors::LayoutInventors, 8);
    benchCounts("objects, 20", objects, &PageObjects::LayoutObjects, 20);
    benchCounts("figures, 50", figures, &PageFigures::LayoutFigures, 50);
    std::printf("\n%-26s %-14s %10s %10s\n", "the last field", "", "median[ms]", "p99 [ms]");
    benchKeys(inventors, {FieldId::txtCityStep2, 7});
    benchKeys(objects, {FieldId::txtObject, 19});
    benchKeys(figures, {FieldId::txtFigureDetail, 49});
}

} // namespace

} // namespace quillford

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    quillford::theme::apply(application);
    try {
        quillford::benchAll();
    } catch (const quillford::Error& error) {
        std::fprintf(stderr, "bench_editors: %s: %s\n", qPrintable(error.source()),
                     qPrintable(error.description()));
        return 2;
    }
    return 0;
}
