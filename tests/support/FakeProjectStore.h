#pragma once

#include "core/commands/ProjectStore.h"
#include "support/CallLog.h"

#include <QStringList>

namespace quillford {

/// Files and a recent list that are only asked for. `answers` is what every call that can say no
/// says.
class FakeProjectStore final : public ProjectStore {
public:
    explicit FakeProjectStore(CallLog& log) : log_(log) {}

    bool answers = true;
    QStringList entries;

    bool SaveFile() override { return ask("SaveFile"); }

    void saveAsNew() override { log_.take("save as new"); }

    bool OpenFile(const QString& argument) override {
        return ask("OpenFile " + argument.toStdString());
    }

    void deleteDraft() override { log_.take("delete draft"); }

    void dropDraft() override { log_.take("drop draft"); }

    void updateShadow() override { log_.take("update shadow"); }

    bool putShadowBack() override { return ask("put shadow back"); }

    void deleteShadow() override { log_.take("delete shadow"); }

    void clearOpenMarker() override { log_.take("clear open marker"); }

    void resetRecentCounters() override { log_.take("reset recent counters"); }

    void reloadRecentProjects() override { log_.take("reload recent projects"); }

    QString recentEntry(int number) const override { return entries.value(number - 1); }

private:
    bool ask(const std::string& call) {
        log_.take(call);
        return answers;
    }

    CallLog& log_;
};

} // namespace quillford
