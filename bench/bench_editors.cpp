#include "BareWidgets.h"
#include "BenchProjects.h"
#include "EditorPages.h"
#include "PairedTimes.h"
#include "RunBench.h"
#include "app/Program.h"
#include "base/Error.h"
#include "controls/FormCombo.h"
#include "controls/Theme.h"
#include "core/settings/SettingsNames.h"
#include "persistence/project/ProjectReader.h"
#include "persistence/project/ProjectWriter.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cstdio>
#include <vector>

/// The panels of each section from the smallest count to the largest and back, beside a plain loop
/// that makes the same widgets. Then, in the running program with the largest project, what a key
/// press takes until it is painted, and the switch from Section 5 to Section 6.
namespace quillford {

namespace {

constexpr double MostTimesBare = 2;
constexpr double MostMillisecondsOfKey = 16;
constexpr double MostMillisecondsOfSwitch = 100;

const char* verdict(bool met) {
    return met ? "met" : "missed";
}

/// Shows what was done, at once and not at the next beat of the screen, which would fall on either
/// side by chance.
void paint(QWidget& widget) {
    QCoreApplication::processEvents();
    widget.repaint();
}

/// A column of panels and how it is laid out.
struct Column {
    const char* name;
    int tab;
    int most;
    QStringView panel;
    void (EditorColumns::*lay)(int);
    bool isKept = false; ///< panels are shown and hidden, and not made and destroyed
};

constexpr Column Columns[] = {
    {"inventors", 1, 8, u"picInventors", &EditorColumns::LayoutInventors, true},
    {"objects", 2, 20, u"frmObjectsNum", &EditorColumns::LayoutObjects},
    {"figures", 3, 50, u"picFigures", &EditorColumns::LayoutFigures},
    {"Main Elements", 4, 15, u"picElement", &EditorColumns::LayoutMainElements},
    {"Sub-Elements", 5, 15, u"picElementUsers", &EditorColumns::LayoutSubElements},
    {"descriptions", 6, 15, u"picfrmMainElementDes", &EditorColumns::LayoutDescriptions},
};

/// The page of a section in front of the others.
QWidget& broughtToFront(EditorPages& pages, int tab) {
    QWidget& container = pages.form().panel(tab);
    container.setEnabled(true);
    container.raise();
    return container;
}

/// Bare copies of the panels, one below the other on a view of the same size.
class BarePanels {
public:
    BarePanels(const QList<QWidget*>& originals, QWidget& container)
        : originals_(originals), view_(&container) {
        QWidget& originalView = *originals.first()->parentWidget();
        view_.setGeometry(originalView.geometry());
        originalView.hide();
        view_.show();
    }

    /// All but the first, which stands in a section from the start.
    void make() {
        for (qsizetype i = 1; i < originals_.size(); ++i) {
            panels_.push_back(bareCopy(*originals_[i], view_));
            panels_.back()->show();
        }
    }

    void drop() {
        while (!panels_.empty())
            panels_.pop_back();
    }

    void show(bool on) {
        for (const auto& panel : panels_)
            panel->setVisible(on);
    }

private:
    QList<QWidget*> originals_;
    QWidget view_;
    std::vector<std::unique_ptr<QWidget>> panels_;
};

/// What the copies are made of: the same column at its largest, which stays as it is.
QList<QWidget*> largestPanels(EditorPages& pages, const Column& column) {
    (pages.columns().*column.lay)(column.most);
    QList<QWidget*> panels;
    for (int i = 0; i < column.most; ++i)
        panels.append(pages.form().findChild<QWidget*>(controlName(column.panel, i)));
    return panels;
}

void benchColumn(const Column& column) {
    EditorPages ours;
    EditorPages peer;
    QWidget& ourContainer = broughtToFront(ours, column.tab);
    QWidget& peerContainer = broughtToFront(peer, column.tab);
    BarePanels bare(largestPanels(peer, column), peerContainer);
    if (column.isKept)
        bare.make();
    const PairedTimes times = measuredInTurns(
        [&] {
            (ours.columns().*column.lay)(column.most);
            paint(ourContainer);
            (ours.columns().*column.lay)(1);
            paint(ourContainer);
        },
        [&] {
            column.isKept ? bare.show(true) : bare.make();
            paint(peerContainer);
            column.isKept ? bare.show(false) : bare.drop();
            paint(peerContainer);
        },
        20);
    std::printf("%-14s %5d %12.1f %12.1f %7.2f  at most %.1f, %s %6d\n", column.name, column.most,
                times.ours / 1000, times.peer / 1000, times.ratio(), MostTimesBare,
                verdict(times.ratio() <= MostTimesBare), times.runs);
}

void benchColumns() {
    std::printf("%-14s %5s %12s %12s %7s  %-16s %6s\n", "panels", "1 to", "ours [ms]", "bare [ms]",
                "ratio", "aim", "runs");
    for (const Column& column : Columns)
        benchColumn(column);
}

/// The running program with the largest project, in which no message window comes up.
class LargestProgram {
public:
    LargestProgram() {
        const QString file = folder_.filePath(QStringLiteral("largest.ivd"));
        Project largest;
        readProject(benchProjects(folder_.path()).constLast().path, largest);
        ProjectWriter(largest).write(file, ProjectWriter::Durability::Flushed);
        LinuxFolders folders;
        FileSettingsStore store(folders.configurationFolder() + QStringLiteral("/settings"));
        Settings settings(store);
        settings.setFlag(settingsNames::ShowMsgTab, true);
        settings.setFlag(settingsNames::ShowMsgFigure, true);
        if (!program_.start({file}))
            throw Error(0, QStringLiteral("the program has ended at its start"), file);
        form().activateWindow();
        paint(form());
    }

    [[nodiscard]] QWidget& form() { return program_.window()->form(); }

    template <typename Control = QWidget>
    [[nodiscard]] Control& control(const QString& name) {
        auto* const found = form().findChild<Control*>(name);
        if (!found)
            throw Error(0, QStringLiteral("there is no such control"), name);
        return *found;
    }

    void clickTab(int tab) {
        QTest::mouseClick(&control(controlName(u"picTab", tab)), Qt::LeftButton);
        paint(form());
    }

    /// Chooses a number of Main Elements as the list does, and waits for the layout.
    void chooseElements(int count) {
        auto& list = control<FormCombo>(QStringLiteral("cboMainElementNum"));
        list.setCurrentIndex(count - 1);
        Q_EMIT list.activated(count - 1);
        QTest::qWait(20);
        paint(form());
    }

private:
    QTemporaryDir folder_;
    Program program_;
};

double millisecondsOf(const std::function<void()>& run) {
    QElapsedTimer time;
    time.start();
    run();
    return static_cast<double>(time.nsecsElapsed()) / 1e6;
}

/// Three times in milliseconds, and the verdict on one of them.
void print(const char* what, std::vector<double> times, double decisive, double most) {
    std::sort(times.begin(), times.end());
    const auto share = [&](double part) {
        return times[static_cast<std::size_t>(static_cast<double>(times.size() - 1) * part)];
    };
    const double time = share(decisive);
    std::printf("%-44s %10.2f %10.2f %10.2f  below %.0f, %s %6zu\n", what, share(0.5), share(0.99),
                times.back(), most, verdict(time < most), times.size());
}

void benchKeys(LargestProgram& program, int tab, const QString& name) {
    constexpr int Keys = 500;
    program.clickTab(tab);
    QWidget& field = program.control(name);
    field.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&field, Qt::Key_End, Qt::ControlModifier);
    paint(program.form());
    std::vector<double> times;
    for (int i = 0; i < Keys; ++i) {
        const bool endsWord = i % 6 == 5;
        times.push_back(millisecondsOf([&] {
            QTest::keyClick(&field, endsWord ? Qt::Key_Space : Qt::Key_A);
            paint(field);
        }));
    }
    print(qPrintable(QStringLiteral("a key press in ") + name), times, 0.99, MostMillisecondsOfKey);
}

void benchSwitch(LargestProgram& program) {
    constexpr int Switches = 50;
    program.clickTab(4);
    std::vector<double> standing;
    for (int i = 0; i < Switches; ++i) {
        standing.push_back(millisecondsOf([&] { program.clickTab(5); }));
        program.clickTab(4);
    }
    print("from Section 5 to 6, 15 elements", standing, 1, MostMillisecondsOfSwitch);
    std::vector<double> making;
    for (int i = 0; i < Switches; ++i) {
        program.chooseElements(1);
        program.clickTab(5);
        program.clickTab(4);
        program.chooseElements(15);
        making.push_back(millisecondsOf([&] { program.clickTab(5); }));
        program.clickTab(4);
    }
    print("the same, after 1 element became 15", making, 1, MostMillisecondsOfSwitch);
}

void benchProgram() {
    LargestProgram program;
    std::printf("\n%-44s %10s %10s %10s  %-17s %6s\n", "the largest project", "median[ms]",
                "p99 [ms]", "worst [ms]", "aim", "runs");
    benchKeys(program, 3, QStringLiteral("txtFigureDetail(49)"));
    benchKeys(program, 4, QStringLiteral("txtElementDes(14)"));
    benchKeys(program, 5, QStringLiteral("txtElementSub9(14)"));
    benchKeys(program, 6, QStringLiteral("txtDesAlterative"));
    benchKeys(program, 7, QStringLiteral("txtOperation"));
    benchSwitch(program);
}

} // namespace

} // namespace quillford

int main(int argc, char** argv) {
    const quillford::BenchHome home;
    QApplication application(argc, argv);
    quillford::theme::apply(application);
    return quillford::runBench("bench_editors", [&] {
        quillford::benchColumns();
        quillford::benchProgram();
    });
}
