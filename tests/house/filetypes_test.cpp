// Whether a desktop that has the program's description of file types tells its documents by what they hold.

#include "support/files.h"

#include <QDir>
#include <QFile>
#include <QMimeDatabase>
#include <QTemporaryDir>

namespace {

QByteArray sample(const QString& ending) {
    return tavrel::contentsOf(QStringLiteral(TAVREL_SOURCE_FOLDER "/samples/sample.") + ending).left(4096);
}

TEST(FileTypes, areToldByTheirContentsAndNoOthersClaimed) {
    const QTemporaryDir folder;
    const QString packages = folder.filePath(QStringLiteral("mime/packages"));
    ASSERT_TRUE(QDir().mkpath(packages));
    ASSERT_TRUE(QFile::copy(QStringLiteral(TAVREL_SOURCE_FOLDER "/resources/desktop/tavrel.xml"),
                            packages + QStringLiteral("/tavrel.xml")));
    qputenv("XDG_DATA_HOME", folder.path().toUtf8());
    const QMimeDatabase types;
    for (const char* kind : {"carnet", "materiel", "epaves", "compresseur", "rebreather", "consommables", "budget",
                             "entreprises", "structures", "documents"}) {
        const QString name = QString::fromLatin1(kind);
        const QString type = QStringLiteral("application/x-tavrel-") + name;
        QByteArray bytes = sample(name);
        EXPECT_EQ(types.mimeTypeForData(bytes).name(), type);
        EXPECT_EQ(types.mimeTypeForFileNameAndData(QStringLiteral("no-ending"), bytes).name(), type);
        EXPECT_EQ(types.mimeTypeForFile(QStringLiteral("empty.") + name, QMimeDatabase::MatchExtension).name(), type);
        EXPECT_TRUE(types.mimeTypeForName(type).iconName().endsWith(name));
        EXPECT_EQ(types.mimeTypeForData(bytes.replace("streamtyped", "typedstream")).name(), type) << "big-endian";
    }
    QByteArray bytes = sample(QStringLiteral("carnet"));
    for (const QByteArray& other : {bytes.replace("Plongee", "Voyages"), QByteArray("\x04\x0bstreamtyped"),
                                    QByteArray("Plongee\nBudget\nEpaves\n")}) {
        EXPECT_FALSE(types.mimeTypeForData(other).name().startsWith(QStringLiteral("application/x-tavrel")));
    }
}

}  // namespace
