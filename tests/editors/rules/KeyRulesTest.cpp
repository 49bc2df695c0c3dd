#include "editors/rules/KeyRules.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;

TEST(KeyRules, Enter_adds_no_line_to_three_fields_alone) {
    for (const FieldRow& row : fieldTable())
        EXPECT_EQ(swallowsEnter(row.id), row.name == u"txtPurpose" || row.name == u"txtObject" ||
                                             row.name == u"txtMainElement")
            << row.name.toString().toStdString();
}
