#pragma once

#include "cli/CliProgram.h"
#include "support/FakeFolders.h"
#include "support/FakePictureReader.h"
#include "support/FakeWordProcessor.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QBuffer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillford {

/// The program in memory, beside a folder of its own.
class CliRun : public testing::Test {
protected:
    CliRun() {
        folders.temporary = place(QStringLiteral("temp"));
        EXPECT_TRUE(QDir().mkpath(folders.temporary));
    }

    /// Runs the program once and gives its exit status; the outputs of earlier runs are forgotten.
    int run(const QStringList& arguments) {
        QBuffer outputs;
        QBuffer errors;
        outputs.open(QIODevice::WriteOnly);
        errors.open(QIODevice::WriteOnly);
        const auto print = [this](const PrintJob& job) {
            prints.append(job);
            return QByteArray("%PDF");
        };
        CliContext context{outputs, errors, folders, pictures, word, print};
        const int status = CliProgram(context).run(arguments);
        output = outputs.data();
        error = errors.data();
        return status;
    }

    /// Runs the program and expects it to fail with this one line.
    void expectFailure(const QStringList& arguments, const QString& line) {
        EXPECT_EQ(run(arguments), 2);
        EXPECT_EQ(QString::fromUtf8(error), QStringLiteral("quillford-cli: ") + line + u'\n');
        EXPECT_EQ(output, QByteArray());
    }

    /// A path in the test's own folder.
    [[nodiscard]] QString place(const QString& name) const { return folder.filePath(name); }

    /// Writes a project into the test's folder and gives its path.
    QString project(const QByteArray& json, const QString& name = QStringLiteral("project.json")) {
        writeFile(place(name), json);
        return place(name);
    }

    /// The least that makes every section complete.
    static QByteArray completeProject() {
        return R"({"txtFileNo": "QF-7", "txtInventionTitle": "Folding Easel",
            "txtTechTitle": "easel", "txtNameStep1": "Ann", "txtLastStep1": "Lee",
            "txtAddress1Step1": "1 Way", "txtCityStep1": "Nome", "txtZipStep1": "99762",
            "txtNameStep2": ["Ann"], "txtLastStep2": ["Lee"], "txtAddress1Step2": ["1 Way"],
            "txtCityStep2": ["Nome"], "txtZipStep2": ["99762"],
            "txtPurpose": "It folds", "cboObjectNum": "1", "txtObject": ["folds"],
            "cboFiguresNum": "0", "txtMainElement": "a leg", "cboMainElementNum": "1",
            "txtElementName": ["leg"], "txtElementDes": ["It stands"], "txtElementMain": ["leg"],
            "txtElementSub1": ["foot"], "txtMainElementNameDetail": ["A leg"],
            "txtDesConnections": "None", "txtOperation": "It stands"})";
    }

    QTemporaryDir folder;
    FakeFolders folders;
    FakePictureReader pictures;
    FakeWordProcessor word;
    QList<PrintJob> prints; ///< of all runs
    QByteArray output;
    QByteArray error;
};

} // namespace quillford
