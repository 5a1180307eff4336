// The panel's proof, for the start-up script, that an installed build shows its first page.
#include "app/buildproof.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using ovra::GlobalElements::BuildProof;

class TestBuildProof : public QObject
{
    Q_OBJECT

private slots:
    void onlyAFolderInTheHomesDownloadsIsManaged()
    {
        QTemporaryDir root;
        const QString home = root.filePath(QStringLiteral("home"));
        const QString build = home + QStringLiteral("/Downloads/build");
        QVERIFY(QDir().mkpath(build) && QDir().mkpath(root.filePath(QStringLiteral("dev/build"))));
        QVERIFY(QDir().mkpath(build + QStringLiteral("/nested")));
        QVERIFY(QFile::link(home, root.filePath(QStringLiteral("linked"))));

        QCOMPARE(BuildProof::ManagedFolder(build, home), QDir(build).canonicalPath());
        // The same folders reached through a link, and with a trailing slash.
        QCOMPARE(BuildProof::ManagedFolder(build + QLatin1Char('/'), root.filePath(QStringLiteral("linked"))),
                 QDir(build).canonicalPath());
        QCOMPARE(BuildProof::ManagedFolder(root.filePath(QStringLiteral("dev/build")), home), QString());
        QCOMPARE(BuildProof::ManagedFolder(build + QStringLiteral("/nested"), home), QString());
        QCOMPARE(BuildProof::ManagedFolder(build, root.filePath(QStringLiteral("nohome"))), QString());
    }

    void theFirstPageMarksTheBuildOnce()
    {
        QTemporaryDir build;
        const QString marker = build.filePath(QStringLiteral("proven"));
        BuildProof proof(build.path());
        proof.OnPageShown();
        QVERIFY(QFile::exists(marker));
        QVERIFY(QFile::remove(marker));
        proof.OnPageShown(); // later pages write nothing
        QVERIFY(!QFile::exists(marker));

        BuildProof unmanaged{QString()};
        unmanaged.OnPageShown();
        QVERIFY(!BuildProof::Mark(build.filePath(QStringLiteral("gone")))); // logged, no crash
    }
};

QTEST_GUILESS_MAIN(TestBuildProof)
#include "tst_buildproof.moc"
