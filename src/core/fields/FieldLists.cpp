#include "core/fields/FieldLists.h"

#include <algorithm>
#include <span>

namespace quillford {

namespace {

constexpr QStringView States[] = {
    u"AK", u"AL", u"AR", u"AS", u"AZ", u"CA", u"CO", u"CT", u"DC", u"DE", u"FL", u"GA", u"HI",
    u"IA", u"ID", u"IL", u"IN", u"KS", u"KY", u"LA", u"MA", u"MD", u"ME", u"MI", u"MN", u"MO",
    u"MS", u"MT", u"NC", u"ND", u"NE", u"NH", u"NJ", u"NM", u"NV", u"NY", u"OH", u"OK", u"OR",
    u"PA", u"RI", u"SC", u"SD", u"TN", u"TX", u"UT", u"VA", u"VT", u"WA", u"WI", u"WV", u"WY"};

// The blank behind Great Britain belongs to the list.
constexpr QStringView Countries[] = {u"United States",
                                     u"Afghanistan",
                                     u"Albania",
                                     u"Algeria",
                                     u"Angola",
                                     u"Argentina",
                                     u"Australia",
                                     u"Austria",
                                     u"Bahrain",
                                     u"Belgium",
                                     u"Bermuda",
                                     u"Bosnia Herzegovina",
                                     u"Brazil",
                                     u"Bulgaria",
                                     u"Cambodia",
                                     u"Cameroon",
                                     u"Canada",
                                     u"Chile",
                                     u"China",
                                     u"Colombia",
                                     u"Comoros",
                                     u"Congo",
                                     u"Costa Rica",
                                     u"Cuba",
                                     u"Cyprus",
                                     u"Czech Republic",
                                     u"Denmark",
                                     u"Ecuador",
                                     u"Egypt",
                                     u"Ethiopia",
                                     u"Finland",
                                     u"France",
                                     u"Germany",
                                     u"Great Britain ",
                                     u"Greece",
                                     u"Hungary",
                                     u"India",
                                     u"Indonesia",
                                     u"Iran",
                                     u"Iraq",
                                     u"Ireland",
                                     u"Italy",
                                     u"Jamaica",
                                     u"Japan",
                                     u"Kazakhstan",
                                     u"Kenya",
                                     u"Korea",
                                     u"Kuwait",
                                     u"Lebanon",
                                     u"Malaysia",
                                     u"Maldives",
                                     u"Mali",
                                     u"Mexico",
                                     u"Morocco",
                                     u"Myanmar",
                                     u"Nepal",
                                     u"Netherlands",
                                     u"New Zealand",
                                     u"Nicaragua",
                                     u"Nigeria",
                                     u"Norway",
                                     u"Oman",
                                     u"Pakistan",
                                     u"Panama",
                                     u"Paraguay",
                                     u"Peru",
                                     u"Philippines",
                                     u"Poland",
                                     u"Portugal",
                                     u"Romania",
                                     u"Rwanda",
                                     u"Saudi Arabia",
                                     u"Singapore",
                                     u"Slovakia",
                                     u"South Africa",
                                     u"Spain",
                                     u"Sweden",
                                     u"Switzerland",
                                     u"Syrian Arab Republic",
                                     u"Thailand",
                                     u"Tunisia",
                                     u"Turkey",
                                     u"United Arab Emirates",
                                     u"Venezuela",
                                     u"Vietnam",
                                     u"Yugoslavia",
                                     u"Zambia"};

constexpr QStringView Views[] = {u"SELECT A VIEW",
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
                                 u"fifth alternative embodiment"};

// The first heading of dashes has one more than the others.
constexpr QStringView ViewHeadings[] = {Views[0], Views[1], Views[6], Views[16], Views[21]};

QStringList rowsOf(std::span<const QStringView> texts) {
    QStringList rows;
    for (const QStringView text : texts)
        rows.append(text.toString());
    return rows;
}

/// Whoever holds India's citizenship types it: the list has never offered it.
QStringList citizenships() {
    QStringList rows = rowsOf(Countries);
    rows.removeOne(QStringLiteral("India"));
    return rows;
}

QStringList countsOf(FieldGroup group) {
    QStringList rows;
    for (int count = groupLimits(group).least; count <= groupLimits(group).most; ++count)
        rows.append(QString::number(count));
    return rows;
}

} // namespace

const QStringList& listRows(FieldListId list) {
    static const QStringList rows[] = {
        {},
        rowsOf(States),
        rowsOf(Countries),
        citizenships(),
        rowsOf(Views),
        countsOf(FieldGroup::Inventors),
        countsOf(FieldGroup::Objects),
        countsOf(FieldGroup::Figures),
        countsOf(FieldGroup::MainElements),
    };
    return rows[static_cast<std::size_t>(list)];
}

bool isViewHeading(QStringView text) {
    return std::find(std::begin(ViewHeadings), std::end(ViewHeadings), text) !=
           std::end(ViewHeadings);
}

} // namespace quillford
