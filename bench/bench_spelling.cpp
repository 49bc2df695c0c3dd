#include "PairedTimes.h"
#include "RunBench.h"
#include "base/Error.h"
#include "controls/LineField.h"
#include "controls/SpellBinder.h"
#include "controls/TextField.h"
#include "controls/Theme.h"
#include "platform/linux/HunspellEngine.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <hunspell/hunspell.hxx>
#include <string>
#include <vector>

/// The spelling of a field of 10,000 words beside the bare calls of Hunspell for the same words,
/// which find no words in a text, recode nothing and know no names. Then what a key press takes in
/// a field of a megabyte that is bound to the spell checker, until it is painted.
namespace quillford {

namespace {

constexpr double MostTimesHunspell = 1.5;
constexpr double MostMilliseconds = 500;
constexpr int Words = 10'000;
constexpr int Megabyte = 1 << 20;

QString dictionary() {
    return QStringLiteral(QUILLFORD_DICTIONARY);
}

/// A text as users write it, in which two words of a hundred are unknown.
QString textOf(qsizetype words) {
    static const QStringList sentence =
        QStringLiteral(
            "The tripod 10 has three telescoping legs 11 that are joined at a head 12, and "
            "each of the legs locks at any length by means of a twist collar 13. The "
            "hinged tray's two halves, pivotably held by the canvas clamp, don't slide "
            "off the crossbar when the easel is folded for transport in its carrying "
            "case.")
            .split(u' ');
    QStringList text;
    for (qsizetype i = 0; i < words; ++i)
        text.append(sentence.at(i % sentence.size()));
    return text.join(u' ');
}

std::vector<std::string> bareWords(const QString& text) {
    std::vector<std::string> words;
    for (const TextRange& word : wordsIn(text))
        if (const QString letters = text.sliced(word.start, word.length); isSpellable(letters))
            words.push_back(spelled(letters).toStdString());
    return words;
}

void benchWords(HunspellEngine& engine) {
    const QString text = textOf(Words);
    const Spelling spelling(engine, [] { return QStringList{QStringLiteral("folding easel")}; });
    const QByteArray list = dictionary().toLocal8Bit();
    Hunspell bare(QByteArray(list).replace(".lex", ".aff").constData(), list.constData());
    const std::vector<std::string> words = bareWords(text);
    const auto isUnknown = [&bare](const std::string& word) { return !bare.spell(word); };
    const auto peer = [&] { return std::count_if(words.begin(), words.end(), isUnknown); };
    const auto ours = [&] { return spelling.unknownWords(text).size(); };
    if (ours() != peer() || ours() == 0)
        throw Error(0, QStringLiteral("%1 and %2 unknown words").arg(ours()).arg(peer()),
                    QStringLiteral("10,000 words"));
    const PairedTimes times = measuredInTurns([&] { (void)ours(); }, [&] { (void)peer(); });
    std::printf("%-26s %-20s %10s %10s %6s  %s\n", "text", "ours / peer", "ours [us]", "peer [us]",
                "ratio", "aim");
    std::printf("%-26s %-20s %10.1f %10.1f %6.2f  at most %.1f, %s\n", "10,000 words, 2% unknown",
                "spelling / Hunspell", times.ours, times.peer, times.ratio(), MostTimesHunspell,
                times.ratio() <= MostTimesHunspell ? "met" : "missed");
}

/// Milliseconds until a typed letter is painted: the median and the worst of a few.
template <typename Field>
void benchKey(SpellBinder& binder, const char* what, const QString& text, Qt::Key place) {
    constexpr int Keys = 15;
    Field field;
    field.resize(600, 90);
    field.showText(text);
    field.show();
    field.setFocus();
    binder.SpellAttach(field);
    const auto press = [&field](int key, Qt::KeyboardModifiers modifiers, const QString& typed) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, typed);
        QCoreApplication::sendEvent(&field, &event);
        QCoreApplication::processEvents();
    };
    press(place, Qt::NoModifier, {});
    press(place, Qt::ControlModifier, {});
    std::vector<double> times;
    for (int i = 0; i < Keys; ++i) {
        QElapsedTimer time;
        time.start();
        press(Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        times.push_back(static_cast<double>(time.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    if (field.text().size() != text.size() + Keys)
        throw Error(0, QStringLiteral("keys were lost"), QString::fromUtf8(what));
    std::printf("%-44s %-9s %10.1f %10.1f  below %.0f, %s\n", what,
                place == Qt::Key_End ? "end" : "beginning", times[Keys / 2], times.back(),
                MostMilliseconds, times.back() < MostMilliseconds ? "met" : "missed");
}

void benchKeys(HunspellEngine& engine) {
    SpellBinder binder(engine, dictionary(), {});
    const QString blanks = textOf(Megabyte / 5).left(Megabyte);
    const QString run(Megabyte, u'x');
    QString lines = blanks;
    for (qsizetype i = 80; i < lines.size(); i += 80)
        lines[i] = u'\n';
    std::printf("\n%-44s %-9s %10s %10s  %s\n", "a key press in 1 MB of text", "at the",
                "median[ms]", "worst[ms]", "aim");
    for (const Qt::Key place : {Qt::Key_Home, Qt::Key_End}) {
        benchKey<TextField>(binder, "box, lines of 80 characters", lines, place);
        benchKey<TextField>(binder, "box, one line with blanks", blanks, place);
        benchKey<TextField>(binder, "box, one line without a blank", run, place);
        benchKey<LineField>(binder, "field of one line, with blanks", blanks, place);
        benchKey<LineField>(binder, "field of one line, without a blank", run, place);
    }
}

void benchAll() {
    const QTemporaryDir folder;
    HunspellEngine engine(folder.filePath(QStringLiteral("words.txt")));
    QElapsedTimer time;
    time.start();
    engine.loadDictionary(dictionary());
    if (!engine.hasDictionary())
        throw Error(0, QStringLiteral("there is no dictionary"), dictionary());
    std::printf("dictionary loaded once in %lld ms\n", static_cast<long long>(time.elapsed()));
    benchWords(engine);
    benchKeys(engine);
}

} // namespace

} // namespace quillford

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    quillford::theme::apply(application);
    return quillford::runBench("bench_spelling", quillford::benchAll);
}
