#include "persistence/compound/Storage.h"
#include "persistence/compound/StorageError.h"
#include "persistence/compound/StorageModes.h"
#include "support/CompoundChecker.h"
#include "support/MemoryByteStore.h"
#include "support/PrintQt.h"

#include <QStringList>

#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <random>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// A storage in memory: what the file is compared with.
struct Model {
    std::map<QString, std::vector<std::byte>> streams;
    std::map<QString, Model> storages;

    [[nodiscard]] bool has(const QString& name) const {
        return streams.contains(name) || storages.contains(name);
    }
};

class RandomOperations {
public:
    explicit RandomOperations(quint64 seed) : random_(seed) {
        root_ = Storage::createRoot(std::make_unique<MemoryByteStore>(file_), u"memory"_s);
    }

    /// One operation on a storage of the file and its model, then the check of the whole file.
    /// False when something was wrong, which is told by the failure.
    bool step() {
        const bool watchesEachWrite = below(16) == 0;
        if (watchesEachWrite)
            file_->afterWrite = [this] { check(CheckMode::AfterStop); };
        operate();
        root_.Commit(0);
        file_->afterWrite = nullptr;
        check(CheckMode::Strict);
        if (below(64) == 0)
            compareAll(root_, model_);
        return !testing::Test::HasFailure();
    }

    [[nodiscard]] std::size_t fileSize() const { return file_->bytes.size(); }

private:
    quint32 below(quint32 bound) {
        return std::uniform_int_distribution<quint32>(0, bound - 1)(random_);
    }

    QString randomName() {
        static const QStringList names = {u"a"_s,
                                          u"B"_s,
                                          u"Section 1"_s,
                                          u"Section 10"_s,
                                          u"index 7"_s,
                                          u"\u00E9t\u00E9"_s,
                                          u"\u00C9tage"_s,
                                          u"\u0416\u0443\u043A"_s,
                                          u"zz"_s,
                                          u"Zy"_s,
                                          u"\u0005Summary"_s,
                                          u"a name of thirty-one characters"_s};
        const QString name = names[below(static_cast<quint32>(names.size()))];
        return below(3) == 0 ? name : (name.left(20) + QString::number(below(10)));
    }

    /// Lengths around all the places at which something changes.
    quint32 randomLength() {
        switch (below(8)) {
        case 0:
            return 4096 - 3 + below(6);
        case 1:
            return 64 * below(10) + below(3);
        case 2:
            return 512 * (8 + below(6)) + below(3);
        case 3:
            return below(40) == 0 ? 60000 + below(20000) : below(9000);
        default:
            return below(300);
        }
    }

    std::vector<std::byte> randomBytes(quint32 length) {
        std::vector<std::byte> bytes(length);
        quint32 value = below(0xFFFFFF);
        for (std::byte& byte : bytes) {
            value = value * 1664525 + 1013904223;
            byte = static_cast<std::byte>(value >> 24);
        }
        return bytes;
    }

    template <typename Map>
    QString anyKey(const Map& map) {
        return std::next(map.begin(), below(static_cast<quint32>(map.size())))->first;
    }

    void operate() {
        Storage storage = root_;
        Model* model = &model_;
        while (!model->storages.empty() && below(3) == 0) {
            const QString name = anyKey(model->storages);
            storage = storage.OpenStorage(name, StorageMode::Exclusive);
            model = &model->storages[name];
        }
        const quint32 choice = below(100);
        const bool crowded = model->streams.size() > 14;
        if (choice < 10)
            createStorage(storage, *model);
        else if (choice < (crowded ? 15U : 40U))
            writeStream(storage, *model, randomName());
        else if (choice < 60 && !model->streams.empty())
            writeStream(storage, *model, anyKey(model->streams));
        else if (choice < 70 && !model->streams.empty())
            resize(storage, *model, anyKey(model->streams));
        else if (choice < (crowded ? 90U : 78U))
            destroy(storage, *model);
        else if (choice < 86)
            rename(storage, *model);
        else if (choice < 92)
            moveToRoot(storage, *model);
        else if (choice < 94)
            root_ = Storage(), storage = Storage(),
            root_ = Storage::openRoot(std::make_unique<MemoryByteStore>(file_), u"memory"_s);
        else if (!model->streams.empty())
            compare(storage, *model, anyKey(model->streams));
    }

    void createStorage(Storage& storage, Model& model) {
        const QString name = randomName();
        if (model.has(name) || model.storages.size() > 3)
            return;
        (void)storage.CreateStorage(name, StorageMode::Exclusive);
        model.storages[name];
    }

    void writeStream(Storage& storage, Model& model, const QString& name) {
        if (model.storages.contains(name))
            return;
        Stream stream = storage.CreateStream(name, StorageMode::Exclusive);
        std::vector<std::byte>& expected = model.streams[name];
        const quint32 pieces = 1 + below(4);
        for (quint32 i = 0; i < pieces; ++i) {
            const auto size = static_cast<quint32>(expected.size());
            quint32 position = below(3) == 0 ? below(size + 1) : 0;
            if (below(20) == 0)
                position = size + below(2000);
            else if (below(3) == 0)
                position = size;
            stream.SSeek(position);
            const std::vector<std::byte> bytes = randomBytes(randomLength());
            stream.write(bytes);
            if (!bytes.empty() && expected.size() < position + bytes.size())
                expected.resize(position + bytes.size());
            std::copy(bytes.begin(), bytes.end(),
                      expected.begin() + (bytes.empty() ? 0 : position));
        }
    }

    void resize(Storage& storage, Model& model, const QString& name) {
        const quint32 length = below(4) == 0 ? 0 : randomLength();
        storage.OpenStream(name, StorageMode::Exclusive).SetSize(length);
        model.streams[name].resize(length);
    }

    void destroy(Storage& storage, Model& model) {
        if (below(6) == 0 && !model.storages.empty()) {
            const QString name = anyKey(model.storages);
            storage.DestroyElement(name);
            model.storages.erase(name);
        } else if (!model.streams.empty()) {
            const QString name = anyKey(model.streams);
            storage.DestroyElement(name);
            model.streams.erase(name);
        }
    }

    void rename(Storage& storage, Model& model) {
        const QString to = randomName();
        if (model.has(to) || model.streams.empty())
            return;
        const QString from = anyKey(model.streams);
        storage.RenameElement(from, to);
        model.streams[to] = std::move(model.streams[from]);
        model.streams.erase(from);
    }

    void moveToRoot(Storage& storage, Model& model) {
        const QString to = randomName();
        if (&model == &model_ || model_.has(to) || model.streams.empty())
            return;
        const QString from = anyKey(model.streams);
        const bool copies = below(2) == 0;
        storage.MoveElementTo(from, root_, to, copies ? StorageMode::Copy : StorageMode::Move);
        model_.streams[to] = model.streams[from];
        if (!copies)
            model.streams.erase(from);
    }

    void compare(Storage& storage, Model& model, const QString& name) {
        Stream stream = storage.OpenStream(name, StorageMode::Exclusive);
        const std::vector<std::byte>& expected = model.streams[name];
        std::vector<std::byte> bytes(expected.size() + 1);
        bytes.resize(stream.read(bytes));
        EXPECT_TRUE(bytes == expected) << name.toStdString();
    }

    void compareAll(Storage storage, Model& model) {
        EXPECT_EQ(static_cast<std::size_t>(storage.Elements().Count()),
                  model.streams.size() + model.storages.size());
        for (const auto& [name, bytes] : model.streams)
            compare(storage, model, name);
        for (auto& [name, inner] : model.storages)
            compareAll(storage.OpenStorage(name, StorageMode::Exclusive), inner);
    }

    void check(CheckMode mode) {
        const CompoundCheck found = checkCompoundFile(file_->bytes, mode);
        EXPECT_TRUE(found.complaints.empty()) << found.text();
    }

    std::mt19937_64 random_;
    std::shared_ptr<MemoryFile> file_ = std::make_shared<MemoryFile>();
    Storage root_;
    Model model_;
};

quint64 numberFromEnvironment(const char* name, quint64 otherwise) {
    const char* const text = std::getenv(name);
    return text != nullptr ? std::strtoull(text, nullptr, 10) : otherwise;
}

} // namespace

// QUILLFORD_RANDOM_OPERATIONS and QUILLFORD_RANDOM_SEED ask for another, or a longer, run.
TEST(RandomOperations, leave_a_sound_file_that_holds_what_a_model_holds) {
    const quint64 operations = numberFromEnvironment("QUILLFORD_RANDOM_OPERATIONS", 100000);
    const quint64 seed = numberFromEnvironment("QUILLFORD_RANDOM_SEED", 20240229);
    constexpr quint64 OperationsPerFile = 5000;
    for (quint64 done = 0; done < operations;) {
        RandomOperations file(seed + done);
        for (quint64 i = 0; i < OperationsPerFile && done < operations; ++i, ++done)
            ASSERT_TRUE(file.step()) << "seed " << seed + done - i << ", operation " << i;
    }
}
