#include "draft/commands/PrintCommands.h"

#include "draft/commands/DraftFixture.h"
#include "support/FakePagePrinter.h"

using namespace quillford;

namespace {

const QString DraftFooter = u"&bPage &p of &P&b"_s;

class PrintCommandsTest : public DraftFixture {
protected:
    PrintCommandsTest() { setUsersOwn(u"&w"_s, u"&u&b&d"_s); }

    void setUsersOwn(const QString& header, const QString& footer) {
        settings.regWrite(Hive::CurrentUser, settingsNames::PageSetupKey, u"header", header);
        settings.regWrite(Hive::CurrentUser, settingsNames::PageSetupKey, u"footer", footer);
    }

    [[nodiscard]] QString header() const {
        return settings.regRead(Hive::CurrentUser, settingsNames::PageSetupKey, u"header");
    }

    [[nodiscard]] QString footer() const {
        return settings.regRead(Hive::CurrentUser, settingsNames::PageSetupKey, u"footer");
    }

    void expectUsersOwn() const {
        EXPECT_EQ(header(), u"&w"_s);
        EXPECT_EQ(footer(), u"&u&b&d"_s);
    }

    PageSetup pageSetup{settings};
    FakePagePrinter printer;
    PrintCommands commands{
        {project, system, preview, screen.looks, pageSetup, printer, folders, prompts, clock}};
};

} // namespace

TEST_F(PrintCommandsTest, the_preview_is_printed_with_the_number_of_each_page) {
    preview.buildFinalDraft();
    commands.imgPrintFile();
    ASSERT_EQ(printer.jobs.size(), 1);
    EXPECT_EQ(printer.jobs[0].html, preview.previewHtml());
    EXPECT_EQ(printer.jobs[0].title, u"Project - QF-7"_s);
    EXPECT_EQ(printer.jobs[0].header, u""_s);
    EXPECT_EQ(printer.jobs[0].footer, DraftFooter);
}

TEST_F(PrintCommandsTest, the_user_s_header_and_footer_are_back_when_the_print_has_ended) {
    printer.endsAtOnce = false;
    commands.imgPrintFile();
    EXPECT_EQ(header(), u""_s);
    EXPECT_EQ(footer(), DraftFooter);
    printer.end();
    expectUsersOwn();
}

TEST_F(PrintCommandsTest, what_the_user_changes_between_two_prints_is_lost) {
    commands.imgPrintFile();
    setUsersOwn(u"new"_s, u"new"_s);
    commands.imgPrintFile();
    expectUsersOwn();
}

TEST_F(PrintCommandsTest, an_empty_pair_is_read_again_at_each_print) {
    setUsersOwn(u""_s, u""_s);
    commands.imgPrintFile();
    EXPECT_EQ(footer(), u""_s);
    setUsersOwn(u"&w"_s, u"&u&b&d"_s);
    commands.imgPrintFile();
    expectUsersOwn();
}

TEST_F(PrintCommandsTest, settings_that_cannot_be_read_count_as_empty) {
    store.cannotRead = true;
    commands.imgPrintFile();
    ASSERT_EQ(printer.jobs.size(), 1);
    EXPECT_EQ(printer.jobs[0].footer, u""_s);
}

TEST_F(PrintCommandsTest, the_menu_builds_the_preview_first_and_waits_two_seconds) {
    standOn(3);
    commands.mnuFilePrint();
    EXPECT_EQ(shown.size(), 1);
    EXPECT_TRUE(log.has("draft commands on"));
    EXPECT_EQ(clock.now, 1000 + 2000);
    ASSERT_EQ(printer.jobs.size(), 1);
    EXPECT_EQ(printer.jobs[0].html, shown[0]);
}

TEST_F(PrintCommandsTest, the_menu_prints_at_once_what_is_on_screen) {
    preview.buildFinalDraft();
    standOn(8);
    log.calls.clear();
    commands.mnuFilePrint();
    EXPECT_TRUE(calls().empty());
    EXPECT_EQ(printer.jobs.size(), 1);
}

TEST_F(PrintCommandsTest, a_draft_that_cannot_be_built_is_not_printed) {
    rules.setSectionStatus(SectionRules::FinalDraftTab, u"WARNING"_s);
    log.calls.clear();
    commands.mnuFilePrint();
    EXPECT_TRUE(printer.jobs.isEmpty());
    EXPECT_FALSE(log.has("draft commands on"));
    expectUsersOwn();
}

TEST_F(PrintCommandsTest, the_index_is_printed_on_the_first_upright_printer) {
    printer.machines = {{u"plotter"_s, false}, {u"laser"_s, true}, {u"inkjet"_s, true}};
    commands.imgPrint();
    EXPECT_EQ(printer.chosen, u"laser"_s);
    ASSERT_EQ(printer.jobs.size(), 1);
    EXPECT_TRUE(printer.jobs[0].html.contains(u"<title>Index of Elements</title>"));
    EXPECT_TRUE(printer.jobs[0].html.contains(u"20:   Clip "));
    EXPECT_EQ(printer.jobs[0].footer, DraftFooter);
    expectUsersOwn();
}

TEST_F(PrintCommandsTest, the_index_is_printed_where_no_printer_stands_upright) {
    printer.machines = {{u"plotter"_s, false}};
    commands.imgPrint();
    EXPECT_EQ(printer.chosen, u""_s);
    EXPECT_EQ(printer.jobs.size(), 1);
}

TEST_F(PrintCommandsTest, without_a_printer_a_box_tells_so_and_nothing_is_printed) {
    const FakePrompts::Box box{UserPrompts::Icon::None, u"Information"_s,
                               u"Not found printer,Please install printer and have a try."_s};
    printer.machines.clear();
    commands.imgPrint();
    commands.imgHelpPrint({});
    printer.machines = {{u"Microsoft Office Document Image Writer"_s, true}};
    commands.imgPrint();
    EXPECT_EQ(prompts.boxes, (std::vector<FakePrompts::Box>{box, box, box}));
    EXPECT_TRUE(printer.jobs.isEmpty());
    expectUsersOwn();
}

TEST_F(PrintCommandsTest, help_is_printed_without_header_and_footer) {
    PrintJob page;
    page.html = u"<p>Help"_s;
    page.folder = u"/help"_s;
    page.footer = u"x"_s;
    commands.imgHelpPrint(page);
    ASSERT_EQ(printer.jobs.size(), 1);
    EXPECT_EQ(printer.jobs[0].html, u"<p>Help"_s);
    EXPECT_EQ(printer.jobs[0].folder, u"/help"_s);
    EXPECT_EQ(printer.jobs[0].header + printer.jobs[0].footer, u""_s);
    expectUsersOwn();
}

TEST_F(PrintCommandsTest, the_error_report_keeps_nothing_of_the_user_s_own) {
    commands.imgReportPrint(u"<p>Report"_s);
    ASSERT_EQ(printer.jobs.size(), 1);
    EXPECT_EQ(printer.jobs[0].footer, DraftFooter);
    EXPECT_EQ(header() + footer(), u""_s) << "nothing was kept, so that nothing is put back";
}

TEST_F(PrintCommandsTest, the_error_report_puts_back_what_an_earlier_print_kept) {
    commands.imgPrintFile();
    setUsersOwn(u"new"_s, u"new"_s);
    commands.imgReportPrint(u"<p>Report"_s);
    expectUsersOwn();
}

TEST_F(PrintCommandsTest, a_print_that_fails_is_told_and_the_user_s_own_is_back) {
    printer.fails = true;
    commands.imgPrintFile();
    EXPECT_EQ(prompts.boxes,
              (std::vector<FakePrompts::Box>{
                  {UserPrompts::Icon::Critical, u"Error"_s, u"The pages cannot be printed."_s}}));
    expectUsersOwn();
}
