#include "platform/linux/DesktopEntry.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray execLineFor(const QString& programFile) {
    const QByteArray entry =
        desktopEntry({u"application/x-note"_s, u"Note"_s, u"note"_s, u"Noter"_s, programFile});
    const qsizetype start = entry.indexOf("\nExec=") + 6;
    return entry.sliced(start, entry.indexOf('\n', start) - start);
}

} // namespace

TEST(DesktopEntry, names_the_program_and_the_kind_of_file) {
    EXPECT_EQ(
        desktopEntry({u"application/x-note"_s, u"Note"_s, u"note"_s, u"Noter"_s, u"/opt/noter"_s}),
        "[Desktop Entry]\n"
        "Type=Application\n"
        "Version=1.0\n"
        "Name=Noter\n"
        "Icon=noter\n"
        "Exec=\"/opt/noter\" %f\n"
        "Terminal=false\n"
        "Categories=Office;\n"
        "MimeType=application/x-note;\n");
}

TEST(DesktopEntry, blanks_and_other_letters_of_the_path_stand_as_they_are) {
    EXPECT_EQ(execLineFor(u"/opt/Größe 1/noter"_s), "\"/opt/Größe 1/noter\" %f");
}

TEST(DesktopEntry, what_a_shell_would_read_is_escaped_for_it_and_for_the_entry) {
    EXPECT_EQ(execLineFor(u"/a$b`c\"d\\e"_s), R"("/a\\$b\\`c\\"d\\\\e" %f)");
    EXPECT_EQ(execLineFor(u"/100%f"_s), "\"/100%%f\" %f");
    EXPECT_EQ(execLineFor(u"/two\nlines\tand\rmore"_s), R"("/two\nlines\tand\rmore" %f)");
}
