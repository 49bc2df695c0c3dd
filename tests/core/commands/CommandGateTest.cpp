#include "core/commands/CommandGate.h"

#include "support/PrintQt.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <stdexcept>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class CommandGateTest : public testing::Test {
protected:
    /// Writes down its beginning and its end; in between, window events run.
    void run(
        const QString& name, const CommandGate::Command& events = [] {}) {
        gate.run(name, [this, name, events] {
            done.append(name + u" begins"_s);
            events();
            done.append(name + u" ends"_s);
        });
    }

    CommandGate gate;
    QStringList done;
};

} // namespace

TEST_F(CommandGateTest, a_command_runs_at_once_and_leaves_the_gate_open) {
    EXPECT_FALSE(gate.isBusy());
    run(u"save"_s, [this] { EXPECT_TRUE(gate.isBusy()); });
    EXPECT_FALSE(gate.isBusy());
    run(u"save"_s);
    EXPECT_EQ(done,
              (QStringList{u"save begins"_s, u"save ends"_s, u"save begins"_s, u"save ends"_s}));
}

TEST_F(CommandGateTest, what_is_asked_for_meanwhile_follows_in_its_order) {
    run(u"export"_s, [this] {
        run(u"print"_s, [this] { run(u"help"_s); });
        run(u"exit"_s);
    });
    EXPECT_EQ(done,
              (QStringList{u"export begins"_s, u"export ends"_s, u"print begins"_s, u"print ends"_s,
                           u"exit begins"_s, u"exit ends"_s, u"help begins"_s, u"help ends"_s}));
}

TEST_F(CommandGateTest, the_second_click_of_a_double_one_counts_for_nothing) {
    run(u"export"_s, [this] {
        run(u"export"_s);
        run(u"print"_s);
        run(u"print"_s);
    });
    EXPECT_EQ(done, (QStringList{u"export begins"_s, u"export ends"_s, u"print begins"_s,
                                 u"print ends"_s}));
}

TEST_F(CommandGateTest, a_command_that_fails_leaves_the_gate_open_and_the_kept_ones_to_the_next) {
    EXPECT_THROW(gate.run(u"open"_s,
                          [this] {
                              run(u"save"_s);
                              throw std::runtime_error("broken");
                          }),
                 std::runtime_error);
    EXPECT_FALSE(gate.isBusy());
    EXPECT_TRUE(done.isEmpty());
    run(u"exit"_s);
    EXPECT_EQ(done,
              (QStringList{u"exit begins"_s, u"exit ends"_s, u"save begins"_s, u"save ends"_s}));
}
