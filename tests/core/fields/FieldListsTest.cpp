#include "core/fields/FieldLists.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

// Row by row, with ", " between the rows.
constexpr QStringView States =
    u"AK, AL, AR, AS, AZ, CA, CO, CT, DC, DE, FL, GA, HI, IA, ID, IL, IN, KS, KY, LA, MA, "
    u"MD, ME, MI, MN, MO, MS, MT, NC, ND, NE, NH, NJ, NM, NV, NY, OH, OK, OR, PA, RI, SC, "
    u"SD, TN, TX, UT, VA, VT, WA, WI, WV, WY";

constexpr QStringView Countries =
    u"United States, Afghanistan, Albania, Algeria, Angola, Argentina, Australia, "
    u"Austria, Bahrain, Belgium, Bermuda, Bosnia Herzegovina, Brazil, Bulgaria, Cambodia, "
    u"Cameroon, Canada, Chile, China, Colombia, Comoros, Congo, Costa Rica, Cuba, Cyprus, "
    u"Czech Republic, Denmark, Ecuador, Egypt, Ethiopia, Finland, France, Germany, "
    u"Great Britain , Greece, Hungary, India, Indonesia, Iran, Iraq, Ireland, Italy, "
    u"Jamaica, Japan, Kazakhstan, Kenya, Korea, Kuwait, Lebanon, Malaysia, Maldives, "
    u"Mali, Mexico, Morocco, Myanmar, Nepal, Netherlands, New Zealand, Nicaragua, "
    u"Nigeria, Norway, Oman, Pakistan, Panama, Paraguay, Peru, Philippines, Poland, "
    u"Portugal, Romania, Rwanda, Saudi Arabia, Singapore, Slovakia, South Africa, Spain, "
    u"Sweden, Switzerland, Syrian Arab Republic, Thailand, Tunisia, Turkey, "
    u"United Arab Emirates, Venezuela, Vietnam, Yugoslavia, Zambia";

constexpr QStringView Views[] = {
    u"SELECT A VIEW",
    u"--- 3 Dimensional Views ----",
    u"upper perspective view",
    u"exploded upper perspective view",
    u"lower perspective view",
    u"exploded lower perspective view",
    u"--- 2 Dimensional Views ---",
    u"front view",
    u"rear view",
    u"side view",
    u"exploded side view",
    u"right side view",
    u"left side view",
    u"end view",
    u"top view",
    u"bottom view",
    u"--- Flowcharts & Block Diagrams ---",
    u"flowchart illustrating the overall operation",
    u"flowchart illustrating a sub-operation",
    u"block diagram illustrating the overall",
    u"block diagram illustrating a sub-component",
    u"--- Alternative Embodiments ---",
    u"alternative embodiment",
    u"first alternative embodiment",
    u"second alternative embodiment",
    u"third alternative embodiment",
    u"fourth alternative embodiment",
    u"fifth alternative embodiment",
};

QStringList rowsIn(QStringView text) {
    return text.toString().split(u", "_s);
}

QStringList numbers(int first, int last) {
    QStringList rows;
    for (int number = first; number <= last; ++number)
        rows.append(QString::number(number));
    return rows;
}

} // namespace

TEST(FieldLists, offer_the_52_states_from_AK_to_WY) {
    EXPECT_EQ(listRows(FieldListId::States), rowsIn(States));
    EXPECT_EQ(listRows(FieldListId::States).size(), 52);
}

TEST(FieldLists, offer_the_87_countries_with_the_United_States_first) {
    EXPECT_EQ(listRows(FieldListId::Countries), rowsIn(Countries));
    EXPECT_EQ(listRows(FieldListId::Countries).size(), 87);
    EXPECT_EQ(listRows(FieldListId::Countries).first(), u"United States"_s);
}

TEST(FieldLists, keep_the_blank_behind_Great_Britain) {
    for (const FieldListId list : {FieldListId::Countries, FieldListId::Citizenships}) {
        EXPECT_TRUE(listRows(list).contains(u"Great Britain "_s));
        EXPECT_FALSE(listRows(list).contains(u"Great Britain"_s));
    }
}

TEST(FieldLists, offer_every_country_but_India_as_a_citizenship) {
    QStringList expected = rowsIn(Countries);
    expected.removeAll(u"India"_s);
    EXPECT_EQ(listRows(FieldListId::Citizenships), expected);
    EXPECT_EQ(listRows(FieldListId::Citizenships).size(), 86);
    EXPECT_TRUE(listRows(FieldListId::Countries).contains(u"India"_s));
}

TEST(FieldLists, offer_the_28_views_and_headings) {
    QStringList expected;
    for (const QStringView view : Views)
        expected.append(view.toString());
    EXPECT_EQ(listRows(FieldListId::Views), expected);
    EXPECT_EQ(listRows(FieldListId::Views).size(), 28);
}

TEST(FieldLists, take_five_of_the_views_as_headings) {
    const QStringList& views = listRows(FieldListId::Views);
    QList<qsizetype> headings;
    for (qsizetype row = 0; row < views.size(); ++row)
        if (isViewHeading(views[row]))
            headings.append(row);
    EXPECT_EQ(headings, (QList<qsizetype>{0, 1, 6, 16, 21}));
}

TEST(FieldLists, take_only_the_exact_text_as_a_heading) {
    // Four hyphens stand behind the first heading of hyphens and three behind the others.
    for (const QStringView text :
         {u"", u" ", u"select a view", u"SELECT A VIEW ", u" SELECT A VIEW", u"SELECT",
          u"--- 3 Dimensional Views ---", u"--- 2 Dimensional Views ----", u"---"})
        EXPECT_FALSE(isViewHeading(text)) << text.toString().toStdString();
}

TEST(FieldLists, offer_exactly_the_numbers_that_a_group_may_have) {
    EXPECT_EQ(listRows(FieldListId::InventorCounts), numbers(1, 8));
    EXPECT_EQ(listRows(FieldListId::ObjectCounts), numbers(1, 20));
    EXPECT_EQ(listRows(FieldListId::FigureCounts), numbers(0, 50));
    EXPECT_EQ(listRows(FieldListId::MainElementCounts), numbers(1, 15));
}

TEST(FieldLists, offer_nothing_where_there_is_no_list) {
    EXPECT_TRUE(listRows(FieldListId::None).isEmpty());
}
