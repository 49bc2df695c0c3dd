#include "controls/SpellBinder.h"

#include "controls/LineField.h"
#include "controls/TextField.h"
#include "support/FakeSpellEngine.h"
#include "support/PrintQt.h"

#include <QLabel>

#include <gtest/gtest.h>
#include <memory>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class SpellBinderTest : public testing::Test {
protected:
    static bool isBound(const QWidget& field) { return SpellMarks::of(field)->isBound(); }

    LineField line;
    TextField text;
    FakeSpellEngine engine;
    std::optional<SpellBinder> binder{std::in_place, engine, u"/program/Dictionary/SpellUS.lex"_s,
                                      Spelling::Names()};
};

} // namespace

TEST_F(SpellBinderTest, nothing_is_bound_before_the_first_call) {
    EXPECT_FALSE(isBound(line));
    EXPECT_FALSE(isBound(text));
    EXPECT_EQ(engine.loaded, QStringList());
}

TEST_F(SpellBinderTest, the_last_field_alone_is_bound) {
    binder->SpellAttach(line);
    EXPECT_TRUE(isBound(line));
    binder->SpellAttach(text);
    EXPECT_FALSE(isBound(line));
    EXPECT_TRUE(isBound(text));
    binder->SpellAttach(text);
    EXPECT_TRUE(isBound(text));
}

TEST_F(SpellBinderTest, the_dictionary_is_named_at_every_call) {
    binder->SpellAttach(line);
    binder->SpellAttach(line);
    const QString path = u"/program/Dictionary/SpellUS.lex"_s;
    EXPECT_EQ(engine.loaded, QStringList({path, path}));
}

TEST_F(SpellBinderTest, a_control_without_marks_takes_over_and_shows_none) {
    binder->SpellAttach(line);
    QLabel label;
    binder->SpellAttach(label);
    EXPECT_FALSE(isBound(line));
}

TEST_F(SpellBinderTest, a_bound_field_that_is_gone_is_forgotten) {
    auto panel = std::make_unique<TextField>();
    binder->SpellAttach(*panel);
    panel.reset();
    binder->SpellAttach(line);
    EXPECT_TRUE(isBound(line));
}

TEST_F(SpellBinderTest, a_binder_that_goes_unbinds_its_field) {
    binder->SpellAttach(line);
    binder.reset();
    EXPECT_FALSE(isBound(line));
}
