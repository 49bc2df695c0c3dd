#pragma once

#include <QList>
#include <QString>

#include <ostream>

namespace quillford {

/// One part of the Final Draft's page: a paragraph of a class with its text, tags left out; a "page
/// break", a "rule", or the "begin" or "end" of a block with its name. A block within a paragraph
/// is written {name} and {/name}.
struct OutlinePart {
    QString kind;
    QString text;

    friend bool operator==(const OutlinePart&, const OutlinePart&) = default;

    friend void PrintTo(const OutlinePart& part, std::ostream* out) {
        *out << part.kind.toStdString() << ": " << part.text.toStdString();
    }
};

/// The whole document in order, with its fixed wording. It is a text of law: a change here is made
/// on purpose or not at all.
inline QList<OutlinePart> documentOutline() {
    using namespace Qt::Literals::StringLiterals;
    const QString WideGap = u"&nbsp;"_s.repeated(9);
    return {
        {u"file-number"_s, u"[Title-FileNo1]"_s},
        {u"notice-head"_s, u"NOTICE TO APPLICANT"_s},
        {u""_s,
         u"NOTICE:  NEVER RELY UPON A SELF-DRAFTED U.S. PROVISIONAL PATENT APPLICATION TO "
         "PROTECT YOUR PATENT RIGHTS.  YOU SHOULD ALWAYS IMMEDIATELY SEEK THE PROFESSIONAL "
         "ASSISTANCE OF A QUALIFIED U.S. PATENT ATTORNEY TO PROTECT YOUR INVENTION.  PUBLICLY "
         "DISCLOSING, SELLING AND/OR OFFERING FOR SALE YOUR INVENTION WHEN YOU ONLY HAVE A "
         "SELF-DRAFTED PROVISIONAL PATENT APPLICATION FILED CAN RESULT IN THE LOSS OF FOREIGN "
         "PATENT RIGHTS WHERE MOST COUNTRIES HAVE \"ABSOLUTE NOVELTY\" LAWS.  IT IS STRONGLY "
         "RECOMMENDED THAT YOU CONTACT A U.S. PATENT ATTORNEY PRIOR TO FILING A SELF-DRAFTED "
         "PROVISIONAL PATENT APPLICATION TO DISCUSS THE RISKS INVOLVED WITH SELF-DRAFTING AND "
         "THE CONTENT OF YOUR PROVISIONAL PATENT APPLICATION. THE LOSS OF SOME OR ALL OF YOUR "
         "PATENT RIGHTS MAY OCCUR IF YOU DO NOT PROPERLY PREPARE A SELF-DRAFTED PROVISIONAL "
         "PATENT APPLICATION.  YOU UNDERSTAND THAT YOU ARE RELYING UPON YOUR OWN SKILLS TO "
         "DRAFT A SELF-DRAFTED PROVISIONAL APPLICATION AND YOU ARE SOLELY RESPONSIBLE FOR ANY "
         "MISTAKES OR OMISSIONS YOU MAKE IN THE PROVISIONAL APPLICATION AS WELL AS ANY "
         "CONSEQUENCES OF SUCH MISTAKES OR OMISSIONS."_s},
        {u""_s,
         u"One Year Deadline to File U.S. Non-Provisional and/or Foreign Applications. Your "
         "U.S. provisional application only provides \"patent pending\" for one year after "
         "filing with the USPTO and then automatically becomes abandoned. A separate U.S. "
         "non-provisional patent application (and typically any foreign patent applications) "
         "must be filed within one year to maintain the priority date from your U.S. "
         "provisional application (ONLY COMMON SUBJECT MATTER BETWEEN THE PROVISIONAL AND "
         "NON-PROVISIONAL APPLICATIONS WILL BE ENTITLED TO THE FILING DATE OF THE PROVISIONAL "
         "APPLICATION - ANY NEW SUBJECT MATTER IN THE NON-PROVISIONAL APPLICATION WILL ONLY "
         "BE ENTITLED TO THE FILING DATE OF THE NON-PROVISIONAL APPLICATION). Make sure to "
         "docket your provisional application filing date to ensure you do not miss this "
         "important deadline which can result in the loss of domestic and foreign patent "
         "rights."_s},
        {u""_s,
         u"File U.S. Non-Provisional and Foreign Patent Applications ASAP.  We recommend "
         "filing a separate non-provisional patent application as soon as possible to address "
         "any mistakes or omissions you made in the self-drafted provisional (and you most "
         "likely made mistakes in the self-drafted provisional).  In particular, if you have "
         "any potential public disclosures prior to filing the provisional patent "
         "application, you must file your U.S. non-provisional patent application prior to "
         "the one-year anniversary of your first potential public disclosure to avoid the "
         "loss of patent rights.  It is important that your patent attorney for the "
         "non-provisional application is fully aware of any potential public disclosures made "
         "prior to filing your provisional patent application."_s},
        {u"rule"_s, u""_s},
        {u"application"_s, u"UNITED STATES PROVISIONAL PATENT APPLICATION"_s},
        {u"rule"_s, u""_s},
        {u"document-kind"_s, u"SPECIFICATION"_s},
        {u"text"_s, u"TO ALL WHOM IT MAY CONCERN:"_s},
        {u"text"_s,
         u"BE IT KNOWN THAT [I/WE],{Disclosing Inventor Name} [2-AND][2-INVENTOR], a citizen "
         "of [2-COUNTRY]{/Disclosing Inventor Name}, have invented a new and useful "
         "[1-INVENTION TITLE] of which the following is a specification:"_s},
        {u"page break"_s, u""_s},
        {u"section"_s, u"[1-INVENTION TITLE-U]"_s},
        {u"subsection"_s, u"BACKGROUND"_s},
        {u"text"_s,
         u"Example embodiments in general relate to [1-GENERIC-PF] and more specifically it "
         "relates to [a/an] [1-INVENTION TITLE] for [3-PURPOSE]"_s},
        {u"subsection"_s, u"SUMMARY"_s},
        {u"text"_s,
         u"An example embodiment of the present invention is directed to [a-an] [1-GENERIC-SG] "
         "which includes [5-GENERAL]"_s},
        {u"text"_s,
         u"There has thus been outlined, rather broadly, some of the features of the "
         "[1-INVENTION TITLE] in order that the detailed description thereof may be better "
         "understood, and in order that the present contribution to the art may be better "
         "appreciated.  There are additional features of the [1-INVENTION TITLE] that will be "
         "described hereinafter and that will form the subject matter of the claims appended "
         "hereto.  In this respect, before explaining at least one embodiment of the "
         "[1-INVENTION TITLE] in detail, it is to be understood that the [1-INVENTION TITLE] "
         "is not limited in its application to the details of construction or to the "
         "arrangements of the components set forth in the following description or "
         "illustrated in the drawings.  The [1-INVENTION TITLE] is capable of other "
         "embodiments and of being practiced and carried out in various ways.  Also, it is to "
         "be understood that the phraseology and terminology employed herein are for the "
         "purpose of the description and should not be regarded as limiting."_s},
        {u"text"_s,
         u"One object is to provide [a/an-pur] [1-INVENTION TITLE-pur] for [3-PURPOSE-pur]"_s},
        {u"objects"_s, u"{Disclosing Object}[object]{/Disclosing Object}"_s},
        {u"text"_s,
         u"Other objects and advantages of the present invention will become obvious to the "
         "reader and it is intended that these objects and advantages are within the scope of "
         "the present invention. To the accomplishment of the above and related objects, this "
         "invention may be embodied in the form illustrated in the accompanying drawings, "
         "attention being called to the fact, however, that the drawings are illustrative "
         "only, and that changes may be made in the specific construction illustrated and "
         "described within the scope of this application."_s},
        {u"page break"_s, u""_s},
        {u"section"_s, u"BRIEF DESCRIPTION OF THE DRAWINGS"_s},
        {u"text"_s,
         u"Example embodiments will become more fully understood from the detailed description "
         "given herein below and the accompanying drawings, wherein like elements are "
         "represented by like reference characters, which are given by way of illustration "
         "only and thus are not limitative of the example embodiments herein."_s},
        {u"begin"_s, u"Disclosing Figure description"_s},
        {u"text"_s, u"[FIGURE I:] [Figure J is a FIGURE-TYPE of the present invention.] [4-FIGURE "
                    "DESCRIPTION]"_s},
        {u"end"_s, u"Disclosing Figure description"_s},
        {u"page break"_s, u""_s},
        {u"section"_s, u"DETAILED DESCRIPTION"_s},
        {u"lettered"_s, u"A."_s + WideGap + u"Overview"_s},
        {u"text"_s,
         u"Turning now descriptively to the drawings, in which similar reference characters "
         "denote similar elements throughout the several views, the figures illustrate an "
         "example embodiment comprising [5-GENERAL-DE]"_s},
        {u"begin"_s, u"Disclosing Main Element"_s},
        {u"lettered"_s, u"[B-MAIN ELEMENT]."_s + WideGap + u"[5-MAIN ELEMENT]"_s},
        {u"text"_s, u"[5-MAIN DESCRIPTION]"_s},
        {u"text"_s, u"&nbsp;"_s},
        {u"text"_s, u"[7-DETAILED]"_s},
        {u"text"_s, u"&nbsp;"_s},
        {u"text"_s, u"[7-VARIATIONS]"_s},
        {u"end"_s, u"Disclosing Main Element"_s},
        {u"lettered"_s, u"[C-MAIN ELEMENT]."_s + WideGap +
                            u"Connections of Main Elements and Sub-Elements of Invention"_s},
        {u"text"_s, u"[7-INTERCONNECTIONS]"_s},
        {u"lettered"_s, u"[D-MAIN ELEMENT]"_s},
        {u"text"_s, u"[7-ALTERNATIVE EMBODIMENTS]"_s},
        {u"lettered"_s, u"[E-MAIN ELEMENT]."_s + WideGap + u"Operation of Preferred Embodiment"_s},
        {u"text"_s, u"[9-OPERATION]"_s},
        {u"text"_s,
         u"Unless otherwise defined, all technical and scientific terms used herein have the "
         "same meaning as commonly understood by one of ordinary skill in the art to which "
         "this invention belongs.  Although methods and materials similar to or equivalent to "
         "those described herein can be used in the practice or testing of the [1-INVENTION "
         "TITLE], suitable methods and materials are described above.  All publications, "
         "patent applications, patents, and other references mentioned herein are "
         "incorporated by reference in their entirety to the extent allowed by applicable law "
         "and regulations.  The [1-INVENTION TITLE] may be embodied in other specific forms "
         "without departing from the spirit or essential attributes thereof, and it is "
         "therefore desired that the present embodiment be considered in all respects as "
         "illustrative and not restrictive.  Any headings utilized within the description are "
         "for convenience only and have no legal or limiting effect."_s},
        {u"page break"_s, u""_s},
        {u"section"_s, u"CLAIMS"_s},
        {u"text"_s,
         u"THIS IS A U.S. PROVISIONAL APPLICATION AND THERE IS NO REQUIREMENT FOR CLAIMS.  TO "
         "THE EXTENT THAT CLAIMS MAY BE REQUIRED UNDER FOREIGN LAW, THE APPLICANT CLAIMS THE "
         "BROADEST POSSIBLE LEGALLY VALID CLAIM FOR THE [1-INVENTION TITLE] AND/OR INVENTION "
         "DESCRIBED IN THE ABSTRACT OF THE DISCLOSURE."_s},
        {u"page break"_s, u""_s},
        {u"section"_s, u"ABSTRACT OF THE DISCLOSURE"_s},
        {u"text"_s, u"[A/An] [1-INVENTION TITLE] for [3-PURPOSE] The [1-INVENTION TITLE] generally "
                    "includes [5-GENERAL]"_s},
        {u"page break"_s, u""_s},
        {u"section"_s, u"DRAWINGS"_s},
        {u"begin"_s, u"Disclosing Figure"_s},
        {u"drawing"_s, u"[IMAGE OF DRAWING ZERO] [IMAGE OF DRAWING]"_s},
        {u"figure"_s, u"[FIG. N]"_s},
        {u"end"_s, u"Disclosing Figure"_s},
        {u"page break"_s, u""_s},
        {u"centred"_s, u"Index of Elements"_s},
        {u"begin"_s, u"Disclosing Index"_s},
        {u"element"_s, u"[Element-1]"_s},
        {u"element"_s, u"[Element-2]"_s},
        {u"element"_s, u"[Element-3]"_s},
        {u"element"_s, u"[Element-4]"_s},
        {u"element"_s, u"[Element-5]"_s},
        {u"element"_s, u"[Element-6]"_s},
        {u"element"_s, u"[Element-7]"_s},
        {u"element"_s, u"[Element-8]"_s},
        {u"element"_s, u"[Element-9]"_s},
        {u"element"_s, u"[Element-10]"_s},
        {u"end"_s, u"Disclosing Index"_s},
    };
}

} // namespace quillford
