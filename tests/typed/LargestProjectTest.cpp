#include "core/wizard/FocusOrder.h"
#include "typed/TypedProgram.h"

#include <QApplication>

using namespace quillford;

namespace {

/// The counts of a project, chosen from their lists in one walk through the sections.
class LargestProject : public TypedProgram {
protected:
    struct Counts {
        int inventors;
        int objects;
        int figures;
        int elements;
    };

    static constexpr Counts Smallest{1, 1, 1, 1};
    static constexpr Counts Largest{8, 20, 50, 15};

    LargestProject() {
        // The user has had enough of these windows.
        whenAsked(u"Section Not Complete"_s, ticksAndPresses(u"cmdYes"_s));
        clickTab(1);
        whenAsked(u"Drawings - Important Information!"_s, ticksAndPresses(u"cmdOK"_s));
        clickTab(3);
    }

    void choose(const Counts& counts) {
        clickTab(1);
        chooseCount(u"cboInventorsNum"_s, counts.inventors);
        clickTab(2);
        chooseCount(u"cboObjectNum"_s, counts.objects);
        clickTab(3);
        chooseCount(u"cboFiguresNum"_s, counts.figures);
        clickTab(4);
        chooseCount(u"cboMainElementNum"_s, counts.elements);
        clickTab(5);
        EXPECT_EQ(hands->shownMembers(u"picElementUsers"_s), counts.elements);
        clickTab(6);
        EXPECT_EQ(hands->shownMembers(u"picfrmMainElementDes"_s), counts.elements);
        settle();
    }

    /// What was left for later is destroyed now.
    static void settle() {
        QTest::qWait(10);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// The widgets of the program, and what stands in the form beside them: bindings, timers,
    /// documents.
    struct Size {
        qsizetype widgets;
        qsizetype objects;

        friend bool operator==(const Size&, const Size&) = default;

        friend void PrintTo(const Size& size, std::ostream* out) {
            *out << size.widgets << " widgets, " << size.objects << " objects";
        }
    };

    [[nodiscard]] Size size() const {
        return {QApplication::allWidgets().size(), hands->form().findChildren<QObject*>().size()};
    }
};

} // namespace

TEST_F(LargestProject, goes_back_to_the_smallest_and_leaves_nothing_over) {
    // The lists make their windows when they are opened for the first time.
    choose(Largest);
    choose(Smallest);
    const Size smallest = size();
    choose(Largest);
    const Size largest = size();
    EXPECT_GT(largest.widgets, smallest.widgets + 19 * 4 + 49 * 15 + 14 * (7 + 25 + 6));
    choose(Smallest);
    EXPECT_EQ(size(), smallest);
    choose(Largest);
    EXPECT_EQ(size(), largest);
    choose(Smallest);
    EXPECT_EQ(size(), smallest);
}

TEST_F(LargestProject, has_empty_panels_after_it_was_the_smallest_in_between) {
    choose(Largest);
    clickTab(5);
    hands->fill(u"txtElementSub9(14)"_s, u"pin"_s);
    hands->fill(u"txtElementMain(14)"_s, u"hinge"_s);
    clickTab(4);
    EXPECT_EQ(hands->shown(u"txtElementName(14)"_s), u"hinge");
    clickTab(3);
    hands->fill(u"txtFigureDetail(49)"_s, u"a view"_s);
    clickTab(2);
    hands->fill(u"txtObject(19)"_s, u"stands"_s);
    clickTab(1);
    hands->fill(u"txtZipStep2(7)"_s, u"97330"_s);
    choose(Smallest);
    choose(Largest);
    for (const QString& name :
         {u"txtElementSub9(14)"_s, u"txtElementMain(14)"_s, u"txtElementName(14)"_s,
          u"txtFigureDetail(49)"_s, u"txtObject(19)"_s, u"txtZipStep2(7)"_s})
        EXPECT_EQ(hands->shown(name), u"") << qPrintable(name);
}
