#include "support/CompoundChecker.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <cwctype>
#include <optional>

namespace {

constexpr std::uint32_t Difat = 0xFFFFFFFC;
constexpr std::uint32_t Fat = 0xFFFFFFFD;
constexpr std::uint32_t End = 0xFFFFFFFE;
constexpr std::uint32_t Free = 0xFFFFFFFF;
constexpr std::uint32_t None = 0xFFFFFFFF;

/// Upper case of a code unit, as far as the tests' own names go (Latin, Greek, Cyrillic).
char16_t upper(char16_t unit) {
    if (unit < 0x80)
        return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 32) : unit;
    if (unit >= 0xE0 && unit <= 0xFE && unit != 0xF7)
        return static_cast<char16_t>(unit - 32);
    if (unit >= 0x3B1 && unit <= 0x3C9 && unit != 0x3C2)
        return static_cast<char16_t>(unit - 32);
    if (unit >= 0x430 && unit <= 0x44F)
        return static_cast<char16_t>(unit - 32);
    return unit;
}

bool nameLess(const std::u16string& left, const std::u16string& right) {
    if (left.size() != right.size())
        return left.size() < right.size();
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                        [](char16_t a, char16_t b) { return upper(a) < upper(b); });
}

class Checker {
public:
    Checker(std::span<const std::byte> bytes, CheckMode mode) : bytes_(bytes), mode_(mode) {}

    CompoundCheck check() {
        if (readHeader() && readFat()) {
            readDirectory();
            readMiniStream();
            if (!directory_.empty())
                checkStorages();
            checkWhatIsLeft();
        }
        return found_;
    }

private:
    struct Entry {
        std::u16string name;
        int type;
        bool red;
        std::uint32_t left, right, child, start;
        std::uint64_t size;
    };

    [[nodiscard]] bool strict() const { return mode_ != CheckMode::AfterStop; }

    void complain(const std::string& text) {
        if (found_.complaints.size() < 20)
            found_.complaints.push_back(text);
    }

    void complainIf(bool wrong, const std::string& text) {
        if (wrong)
            complain(text);
    }

    std::uint32_t number(std::size_t place, std::size_t length = 4) const {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < length && place + i < bytes_.size(); ++i)
            value |= std::to_integer<std::uint32_t>(bytes_[place + i]) << (8 * i);
        return value;
    }

    std::size_t placeOf(std::uint32_t sector) const {
        return (std::size_t{sector} + 1) * sectorSize_;
    }

    bool readHeader() {
        static const unsigned char magic[] = {0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
        if (bytes_.size() < 512 || std::memcmp(bytes_.data(), magic, sizeof magic) != 0) {
            complain("no compound file");
            return false;
        }
        const std::uint32_t shift = number(30, 2);
        if (shift != 9 && shift != 12) {
            complain("sector shift");
            return false;
        }
        sectorSize_ = std::size_t{1} << shift;
        complainIf(number(28, 2) != 0xFFFE, "byte order mark");
        complainIf(number(32, 2) != 6, "mini sector shift");
        complainIf(number(56) != 4096, "cutoff");
        complainIf(strict() && bytes_.size() % sectorSize_ != 0, "the file ends within a sector");
        sectors_ = bytes_.size() < sectorSize_
                       ? 0
                       : (bytes_.size() - sectorSize_ + sectorSize_ - 1) / sectorSize_;
        owner_.assign(sectors_, false);
        return true;
    }

    bool take(std::uint32_t sector, const std::string& what) {
        if (sector >= sectors_) {
            complain(what + ": sector " + std::to_string(sector) + " lies behind the file");
            return false;
        }
        if (owner_[sector]) {
            complain(what + ": sector " + std::to_string(sector) + " stands in two chains");
            return false;
        }
        owner_[sector] = true;
        return true;
    }

    bool readFat() {
        const std::uint32_t count = number(44);
        std::uint32_t difat = number(68);
        std::vector<std::uint32_t> places;
        for (std::size_t i = 0; i < std::min<std::size_t>(count, 109); ++i)
            places.push_back(number(76 + 4 * i));
        for (std::size_t i = count; i < 109 && strict(); ++i)
            complainIf(number(76 + 4 * i) != Free, "a place of the header is not free");
        const std::size_t inSector = sectorSize_ / 4 - 1;
        std::vector<std::uint32_t> difatSectors;
        while (places.size() < count) {
            if (!take(difat, "DIFAT"))
                return false;
            difatSectors.push_back(difat);
            for (std::size_t i = 0; i < inSector && places.size() < count; ++i)
                places.push_back(number(placeOf(difat) + 4 * i));
            difat = number(placeOf(difat) + 4 * inSector);
        }
        complainIf(strict() && difat != End && difat != Free, "the DIFAT does not end");
        complainIf(strict() && difatSectors.size() != number(72), "number of DIFAT sectors");
        for (const std::uint32_t place : places) {
            if (!take(place, "FAT"))
                return false;
            for (std::size_t i = 0; i < sectorSize_ / 4; ++i)
                fat_.push_back(number(placeOf(place) + 4 * i));
        }
        for (const std::uint32_t place : places)
            complainIf(place >= fat_.size() || fat_[place] != Fat, "a FAT sector is not marked so");
        for (const std::uint32_t place : difatSectors)
            complainIf(place >= fat_.size() || fat_[place] != Difat,
                       "a DIFAT sector is not marked so");
        return true;
    }

    std::vector<std::uint32_t> chain(std::uint32_t first, const std::string& what) {
        std::vector<std::uint32_t> sectors;
        for (std::uint32_t sector = first; sector != End;) {
            if (!take(sector, what))
                break;
            if (sector >= fat_.size()) {
                complain(what + ": not covered by the FAT");
                break;
            }
            if (fat_[sector] == Free)
                complain(what + ": sector " + std::to_string(sector) + " is marked free");
            sectors.push_back(sector);
            sector = fat_[sector];
        }
        return sectors;
    }

    void readDirectory() {
        const auto sectors = chain(number(48), "directory");
        complainIf(strict() && number(40) != (sectorSize_ == 4096 ? sectors.size() : 0) &&
                       mode_ == CheckMode::Strict,
                   "number of directory sectors");
        for (const std::uint32_t sector : sectors) {
            for (std::size_t i = 0; i < sectorSize_ / 128; ++i)
                directory_.push_back(readEntry(placeOf(sector) + 128 * i));
        }
        if (directory_.empty() || directory_[0].type != 5)
            complain("no root entry");
    }

    Entry readEntry(std::size_t place) {
        Entry entry{};
        const std::uint32_t length = number(place + 64, 2);
        for (std::uint32_t i = 0; i + 2 < std::min(length, 64U); i += 2)
            entry.name.push_back(static_cast<char16_t>(number(place + i, 2)));
        entry.type = static_cast<int>(number(place + 66, 1));
        entry.red = number(place + 67, 1) == 0;
        entry.left = number(place + 68);
        entry.right = number(place + 72);
        entry.child = number(place + 76);
        entry.start = number(place + 116);
        entry.size = number(place + 120);
        if (sectorSize_ == 4096)
            entry.size |= std::uint64_t{number(place + 124)} << 32;
        return entry;
    }

    void readMiniStream() {
        if (directory_.empty())
            return;
        const auto table = chain(number(60), "mini FAT");
        complainIf(strict() && table.size() != number(64), "number of mini FAT sectors");
        for (const std::uint32_t sector : table) {
            for (std::size_t i = 0; i < sectorSize_ / 4; ++i)
                miniFat_.push_back(number(placeOf(sector) + 4 * i));
        }
        const Entry& root = directory_[0];
        const auto container = root.size == 0 && root.start == 0 ? std::vector<std::uint32_t>{}
                                                                 : chain(root.start, "mini stream");
        checkLength(container.size(), sectorSize_, root.size, "mini stream");
        miniSectors_ = (root.size + 63) / 64;
        miniOwner_.assign(miniFat_.size(), false);
    }

    void checkLength(std::size_t units, std::size_t unit, std::uint64_t size,
                     const std::string& what) {
        const std::uint64_t needed = (size + unit - 1) / unit;
        complainIf(units < needed, what + ": the chain is shorter than its size");
        complainIf(strict() && units > needed, what + ": the chain is longer than its size");
    }

    void checkStorages() {
        reached_.assign(directory_.size(), false);
        reached_[0] = true;
        storages_.push_back(0);
        while (!storages_.empty()) {
            const std::uint32_t storage = storages_.back();
            storages_.pop_back();
            last_.reset();
            blacks_.reset();
            walk(directory_[storage].child, false, 0, 0);
        }
        for (std::size_t i = 0; i < directory_.size(); ++i)
            complainIf(strict() && !reached_[i] && directory_[i].type != 0,
                       "entry " + std::to_string(i) + " is in use and not reached");
    }

    void walk(std::uint32_t id, bool parentRed, int blacks, int depth) {
        if (id == None) {
            if (!blacks_)
                blacks_ = blacks;
            complainIf(mode_ == CheckMode::Strict && *blacks_ != blacks, "blacks differ");
            return;
        }
        if (id >= directory_.size() || reached_[id] || depth > 64) {
            complain("entry " + std::to_string(id) + " is reached twice or is none");
            return;
        }
        reached_[id] = true;
        const Entry& entry = directory_[id];
        complainIf(mode_ == CheckMode::Strict && entry.red && parentRed, "red under red");
        walk(entry.left, entry.red, blacks + (entry.red ? 0 : 1), depth + 1);
        complainIf(last_ && !nameLess(*last_, entry.name), "names do not ascend");
        complainIf(entry.name.empty() || entry.name.size() > 31, "length of a name");
        last_ = entry.name;
        if (entry.type == 1)
            storages_.push_back(id);
        else if (entry.type == 2)
            checkStream(id);
        else
            complain("entry " + std::to_string(id) + " is neither storage nor stream");
        walk(entry.right, entry.red, blacks + (entry.red ? 0 : 1), depth + 1);
    }

    void checkStream(std::uint32_t id) {
        const Entry& entry = directory_[id];
        const std::string what = "stream " + std::to_string(id);
        if (entry.size == 0) {
            complainIf(mode_ == CheckMode::Strict && entry.start != End,
                       what + ": empty, with a start");
        } else if (entry.size >= 4096) {
            checkLength(chain(entry.start, what).size(), sectorSize_, entry.size, what);
        } else {
            checkLength(miniChain(entry.start, what), 64, entry.size, what);
        }
    }

    std::size_t miniChain(std::uint32_t first, const std::string& what) {
        std::size_t count = 0;
        for (std::uint32_t sector = first; sector != End; sector = miniFat_[sector], ++count) {
            if (sector >= miniFat_.size() || sector >= miniSectors_) {
                complain(what + ": mini sector " + std::to_string(sector) + " is none");
                break;
            }
            if (miniOwner_[sector]) {
                complain(what + ": mini sector " + std::to_string(sector) + " in two chains");
                break;
            }
            miniOwner_[sector] = true;
            complainIf(miniFat_[sector] == Free, what + ": a mini sector is marked free");
        }
        return count;
    }

    void checkWhatIsLeft() {
        for (std::size_t i = 0; i < fat_.size(); ++i) {
            const bool owned = i < sectors_ && owner_[i];
            if (!owned && fat_[i] != Free)
                ++found_.leakedSectors;
        }
        for (std::size_t i = 0; i < miniFat_.size(); ++i) {
            if (!miniOwner_[i] && miniFat_[i] != Free)
                ++found_.leakedMiniSectors;
        }
        complainIf(strict() && found_.leakedSectors > 0, "leaked sectors");
        complainIf(strict() && found_.leakedMiniSectors > 0, "leaked mini sectors");
    }

    std::span<const std::byte> bytes_;
    CheckMode mode_;
    CompoundCheck found_;
    std::size_t sectorSize_ = 512;
    std::size_t sectors_ = 0;
    std::uint64_t miniSectors_ = 0;
    std::vector<bool> owner_, miniOwner_, reached_;
    std::vector<std::uint32_t> fat_, miniFat_, storages_;
    std::vector<Entry> directory_;
    std::optional<std::u16string> last_;
    std::optional<int> blacks_;
};

} // namespace

std::string CompoundCheck::text() const {
    std::string all;
    for (const std::string& complaint : complaints)
        all += complaint + "\n";
    return all;
}

CompoundCheck checkCompoundFile(std::span<const std::byte> bytes, CheckMode mode) {
    return Checker(bytes, mode).check();
}
