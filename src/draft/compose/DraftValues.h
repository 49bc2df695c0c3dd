#pragma once

#include "core/fields/ProjectFields.h"
#include "draft/language/Paragraphs.h"

#include <QString>

/// What the fields become in the Final Draft, for the values that both routes share. Every text is
/// taken without the blanks at its ends. Panels are counted from 0; none of the calls can fail.
namespace quillford {

/// "I" for one inventor, "WE" for several.
[[nodiscard]] QString inventorPronoun(const ProjectFields& fields);

/// How many inventors the draft names.
[[nodiscard]] int inventorCount(const ProjectFields& fields);

/// "and " before the last of several inventors, nothing before the others.
[[nodiscard]] QString inventorConjunction(const ProjectFields& fields, int inventor);

/// First name, middle initial with its period where there is one, last name, each in proper case.
[[nodiscard]] QString inventorName(const ProjectFields& fields, int inventor);

[[nodiscard]] QString inventorCountry(const ProjectFields& fields, int inventor);

/// The title in lower case, as it runs through the text.
[[nodiscard]] QString lowerTitle(const ProjectFields& fields);

/// The title as the heading of the second page.
[[nodiscard]] QString headingTitle(const ProjectFields& fields, Route route);

/// "a" or "an" before the title.
[[nodiscard]] QString titleArticle(const ProjectFields& fields);

/// The general field of the invention in lower case, one of it and several, and its article. The
/// plural of an empty text is empty.
[[nodiscard]] QString genericSingular(const ProjectFields& fields);
[[nodiscard]] QString genericPlural(const ProjectFields& fields);
[[nodiscard]] QString genericArticle(const ProjectFields& fields);

/// The sentence that the user's words about one object complete.
[[nodiscard]] QString objectSentence(const ProjectFields& fields, int object);

/// What opens the description of a figure, what stands below its drawing, and the sentence that
/// tells which view it is; the sentence's mark is one itself.
[[nodiscard]] QString figureHeading(int figure);
[[nodiscard]] QString figureAbbreviation(int figure);
[[nodiscard]] QString figureSentence(const ProjectFields& fields, int figure);
[[nodiscard]] QString figureSentenceItem();

/// Whether the project has figures; one panel stands without any.
[[nodiscard]] bool hasFigures(const ProjectFields& fields);

/// Raises `Error` when a Main Element has no description: until the wizard has left the section of
/// the Main Elements there may be none yet, and a draft without it would be wrong.
void requireDescriptions(const ProjectFields& fields);

[[nodiscard]] QString elementName(const ProjectFields& fields, int element);

/// A text that closes a sentence of the template: with its period, and as typed otherwise.
[[nodiscard]] QString closedText(const Field& field);

/// A long field as it stands in the draft.
[[nodiscard]] QString finished(const Field& field, Route route);

/// The alternative embodiments, or the sentence that there are none when the field is empty to the
/// last blank.
[[nodiscard]] QString alternativeEmbodiments(const ProjectFields& fields, Route route);

/// The letter of a heading of the detailed description: "B" for 0, the first after the overview.
[[nodiscard]] QString headingLetter(int heading);

/// What stands in the place of figures where there are none.
[[nodiscard]] QString noFiguresSentence();

} // namespace quillford
