#include "base/Error.h"
#include "platform/linux/FileSettingsStore.h"
#include "platform/linux/HammeredSettings.h"

#include <cstdio>

// settings_hammer FILE NAME ROUNDS: pushes so many entries into the list in the settings file and
// counts each under NAME. Ends with 0, or with 1 and a line on standard error as soon as a change
// is refused or a state is not whole.

namespace {

using namespace quillford;

void demandWhole(const SettingsValues& values) {
    if (!hammer::isWhole(values))
        throw Error(1, QStringLiteral("The list is not whole."));
}

void hammerAway(const QString& file, const QString& name, int rounds) {
    FileSettingsStore store(file);
    for (int round = 0; round < rounds; ++round) {
        store.change([&name](SettingsValues& values) {
            demandWhole(values);
            hammer::push(values);
            hammer::countOne(values, name);
        });
        store.look(demandWhole);
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4)
        return 2;
    try {
        hammerAway(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]),
                   QByteArray(argv[3]).toInt());
        return 0;
    } catch (const quillford::Error& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
