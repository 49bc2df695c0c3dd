#include "core/commands/CommandGate.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace quillford {

void CommandGate::run(const QString& name, const Command& command) {
    if (isBusy()) {
        if (!isKnown(name))
            kept_.push_back({name, command});
        return;
    }
    {
        const QScopedValueRollback working(atWork_, name);
        command();
    }
    while (!isBusy() && !kept_.empty()) {
        const Kept next = std::move(kept_.front());
        kept_.pop_front();
        run(next.name, next.command);
    }
}

bool CommandGate::isKnown(const QString& name) const {
    return name == atWork_ || std::any_of(kept_.begin(), kept_.end(),
                                          [&](const Kept& kept) { return kept.name == name; });
}

} // namespace quillford
