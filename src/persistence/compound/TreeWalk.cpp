#include "persistence/compound/TreeWalk.h"

#include <optional>

namespace quillford::compound {

namespace {

/// A walk without recursion: a hostile tree may be as deep as the directory is long.
class Walker {
public:
    Walker(Directory& directory, std::vector<bool>& reached)
        : directory_(directory), reached_(reached) {}

    TreeWalk walk(EntryId storage) {
        descend(directory_.at(storage).child(), NoEntry, 0, false);
        while (!above_.empty()) {
            const Step step = above_.back();
            above_.pop_back();
            visit(step.id);
            descend(directory_.at(step.id).right(), step.id, step.blacks, step.isRed);
        }
        return result_;
    }

private:
    struct Step {
        EntryId id;
        int blacks; // on the way from the top, this one included
        bool isRed;
    };

    /// Goes to the left for as long as it goes.
    void descend(EntryId id, EntryId parent, int blacks, bool parentIsRed) {
        while (id != NoEntry) {
            if (id >= directory_.size() || reached_[id]) {
                result_.isCutOff = true;
                result_.isWellFormed = false;
                return;
            }
            reached_[id] = true;
            directory_.setParent(id, parent);
            const bool isRed = directory_.at(id).isRed();
            if (isRed && (parentIsRed || parent == NoEntry))
                result_.isWellFormed = false;
            blacks += isRed ? 0 : 1;
            above_.push_back({id, blacks, isRed});
            parent = id;
            parentIsRed = isRed;
            id = directory_.at(id).left();
        }
        if (!blacksToLeaf_)
            blacksToLeaf_ = blacks;
        if (*blacksToLeaf_ != blacks)
            result_.isWellFormed = false;
    }

    void visit(EntryId id) {
        const std::optional<QString> name = directory_.at(id).name();
        std::optional<NameKey> key;
        if (name)
            key.emplace(*name);
        if (!key || (last_ && !(*last_ < *key)))
            result_.isWellFormed = false;
        last_ = key;
        result_.inOrder.push_back(id);
    }

    Directory& directory_;
    std::vector<bool>& reached_;
    std::vector<Step> above_;
    std::optional<NameKey> last_;
    std::optional<int> blacksToLeaf_;
    TreeWalk result_;
};

} // namespace

TreeWalk walkTree(Directory& directory, std::vector<bool>& reached, EntryId storage) {
    return Walker(directory, reached).walk(storage);
}

} // namespace quillford::compound
