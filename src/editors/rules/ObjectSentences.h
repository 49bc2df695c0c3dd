#pragma once

#include <QString>

/// The sentences that lead the objects of Section 3. They are captions only: nothing of them is
/// stored, and none touches what the user typed. Lengths are logical pixels.
namespace quillford {

/// At which width `lblObject(i)` and `lblObjectValidate(i)` wrap.
inline constexpr int ObjectSentenceWidth = 350;

/// Who writes the captions: `LayoutObjects` or `RefreshObjectSentences`. The two differ in the
/// blanks behind the sentences of all objects but the first.
enum class SentenceWriter { Layout, Refresh };

/// What is written over one object.
struct ObjectCaptions {
    QString sentence;     ///< `lblObject(i)`
    QString sentenceStar; ///< `lblObjectValidate(i)`: the star ends two blanks behind the sentence

    friend bool operator==(const ObjectCaptions&, const ObjectCaptions&) = default;
};

/// The captions of the object with this index, from 0, for an invention with this title.
[[nodiscard]] ObjectCaptions objectCaptions(int index, const QString& inventionTitle,
                                            SentenceWriter writer);

/// Where the parts of an object's panel stand: a sentence of more lines than two makes the panel
/// taller by just that much.
struct ObjectPanelPlaces {
    int textTop;     ///< the top of `txtObject(i)`, 6 below the sentence
    int panelHeight; ///< 81 with a sentence of two lines, 26 high

    friend bool operator==(const ObjectPanelPlaces&, const ObjectPanelPlaces&) = default;
};

/// The places for a sentence that begins at `sentenceTop` and is `sentenceHeight` high.
[[nodiscard]] ObjectPanelPlaces objectPanelPlaces(int sentenceTop, int sentenceHeight);

} // namespace quillford
