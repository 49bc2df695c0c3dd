#pragma once

#include "platform/linux/LibreOffice.h"
#include "support/FakeFolders.h"
#include "support/Files.h"

#include <QTemporaryDir>

namespace quillford {

/// LibreOffice as the tests start it: through the module that was built beside them, in a temporary
/// folder of the test's own.
class WriterTesting : public testing::Test {
protected:
    void SetUp() override {
        if (!libreOffice.isInstalled())
            GTEST_SKIP() << "LibreOffice Writer or its development files are not installed";
    }

    [[nodiscard]] QString path(const QString& name) const { return folder.filePath(name); }

    WriterTesting() {
        folders.program = QStringLiteral(QUILLFORD_BUILD_TREE "/Quillford/quillford");
        folders.temporary = path(QStringLiteral("work"));
        EXPECT_TRUE(QDir().mkpath(folders.temporary));
    }

    /// Nothing of a run is left in its work folder, and no process runs from there.
    void expectNothingIsLeft() const {
        EXPECT_TRUE(QDir(folders.temporary).isEmpty());
        EXPECT_EQ(processesOf(folders.temporary), QStringList());
    }

    /// The numbers of the processes whose command line names the folder.
    [[nodiscard]] static QStringList processesOf(const QString& workFolder) {
        QStringList found;
        const QStringList processes = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
        for (const QString& process : processes) {
            QFile commandLine(QStringLiteral("/proc/%1/cmdline").arg(process));
            if (commandLine.open(QIODevice::ReadOnly) &&
                commandLine.readAll().contains(workFolder.toUtf8()))
                found.append(process);
        }
        return found;
    }

    /// Writes a document of these paragraphs and gives its path.
    [[nodiscard]] QString document(const QStringList& paragraphs) const {
        QString body;
        for (const QString& paragraph : paragraphs)
            body += QStringLiteral("<text:p text:style-name=\"%1\">%2</text:p>")
                        .arg(paragraph.section(u'|', 0, 0), paragraph.section(u'|', 1));
        const QString file = path(QStringLiteral("document.fodt"));
        writeFile(file,
                  (head() + body + QStringLiteral("</office:text></office:body></office:document>"))
                      .toUtf8());
        return file;
    }

    QTemporaryDir folder;
    FakeFolders folders;
    LibreOffice libreOffice{folders};

private:
    /// Styles named "plain" and "new-page", and "bold" for spans.
    static QString head() {
        return QStringLiteral(
            R"(<?xml version="1.0" encoding="UTF-8"?><office:document
 xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"
 office:version="1.3" office:mimetype="application/vnd.oasis.opendocument.text"><office:styles>
<style:style style:name="plain" style:family="paragraph"/>
<style:style style:name="new-page" style:family="paragraph">
<style:paragraph-properties fo:break-before="page"/></style:style>
<style:style style:name="bold" style:family="text">
<style:text-properties fo:font-weight="bold"/></style:style>
</office:styles><office:body><office:text>)");
    }
};

} // namespace quillford
