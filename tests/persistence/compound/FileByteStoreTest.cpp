#include "persistence/compound/FileByteStore.h"

#include "base/Error.h"
#include "base/Files.h"
#include "support/Files.h"

#include <QTemporaryDir>

#include <array>
#include <atomic>
#include <thread>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

// Who waits for the lock of a file may get it when another file has taken that one's place.
TEST(FileByteStore, what_is_opened_stands_under_its_name_for_as_long_as_it_is_open) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"project.ivd"_s);
    const QString made = folder.filePath(u"made.ivd"_s);
    writeFile(path, "-");
    std::atomic<bool> ends = false;
    std::thread replacer([&] {
        while (!ends)
            try {
                const auto old = FileByteStore::open(path);
                writeFile(made, "-");
                takePlaceOf(made, path);
            } catch (const Error&) {
                std::this_thread::yield(); // it is open elsewhere
            }
    });
    int opened = 0;
    int lost = 0;
    for (int i = 0; i < 20000; ++i)
        try {
            const auto store = FileByteStore::open(path);
            const std::array written{std::byte{'x'}};
            const std::array parts{Bytes(written)};
            store->write(0, parts);
            ++opened;
            lost += contentOf(path) != "x";
        } catch (const Error&) {
            std::this_thread::yield();
        }
    ends = true;
    replacer.join();
    EXPECT_EQ(lost, 0) << "of " << opened;
    EXPECT_GT(opened, 0);
}
