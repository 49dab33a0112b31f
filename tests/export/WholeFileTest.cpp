#include "export/WholeFile.h"

#include "tests/support/FileContent.h"
#include "tests/support/LargestFileSize.h"
#include "tests/support/SmallDisk.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

const QByteArray older = "older, of another length than the new one";
const QByteArray newer = "new";
const auto newerSize = static_cast<std::size_t>(newer.size());
constexpr uid_t nobody = 65534;

class WholeFileTest : public testing::Test {
protected:
    QString path(const char* name) const { return folder.filePath(name); }

    QByteArray contentOf(const char* name) const { return ::contentOf(path(name)); }

    void create(const char* name, const QByteArray& content = older) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    /** Saves a content under a name; the reason when that fails, "closed" when it is not opened. */
    QString save(const QString& fileName, const QByteArray& content = newer) const {
        WholeFile file(fileName);
        if (!file.isOpen()) {
            return "closed";
        }
        file.write(content.constData(), static_cast<std::size_t>(content.size()));
        return file.commit() ? QString() : file.errorString();
    }

    QStringList names() const {
        return QDir(folder.path())
            .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System | QDir::Hidden);
    }

    mode_t modeOf(const char* name) const {
        struct stat status {};
        stat(path(name).toLocal8Bit().constData(), &status);
        return status.st_mode;
    }

    QTemporaryDir folder;
};

/** A test's body in a process of its own that has no privileges. */
template <typename Body>
void withoutPrivileges(Body body) {
    EXPECT_EXIT(
        {
            if (geteuid() == 0 && setuid(nobody) != 0) {
                std::exit(2);
            }
            body();
            std::exit(testing::Test::HasFailure() ? 1 : 0);
        },
        testing::ExitedWithCode(0), "");
}

} // namespace

TEST_F(WholeFileTest, NewFileIsThereOnceItIsCommitted) {
    {
        WholeFile file(path("file"));
        ASSERT_TRUE(file.isOpen());
        file.write(newer.constData(), newerSize);
        EXPECT_EQ(contentOf("file"), "absent");
        EXPECT_TRUE(file.commit());
    }
    EXPECT_EQ(contentOf("file"), newer);
    EXPECT_EQ(names(), QStringList("file"));
    const std::ofstream plain(path("plain").toStdString());
    EXPECT_EQ(modeOf("file"), modeOf("plain"));
}

TEST_F(WholeFileTest, OlderFileStaysUntilThenAndKeepsItsPermissions) {
    create("file");
    chmod(path("file").toLocal8Bit().constData(), 0640);
    {
        WholeFile file(path("file"));
        file.write(newer.constData(), newerSize);
        EXPECT_EQ(contentOf("file"), older);
        EXPECT_TRUE(file.commit());
    }
    EXPECT_EQ(contentOf("file"), newer);
    EXPECT_EQ(modeOf("file") & 0777U, 0640U);
}

TEST_F(WholeFileTest, WithoutCommitNothingHasHappened) {
    create("file");
    for (const char* name : {"file", "new"}) {
        WholeFile file(path(name));
        file.write(newer.constData(), newerSize);
    }
    EXPECT_EQ(contentOf("file"), older);
    EXPECT_EQ(names(), QStringList("file"));
}

TEST_F(WholeFileTest, FileThatGrowsTooLargeLeavesTheOlderOne) {
    create("file");
    const LargestFileSize limit(10000);
    // More than fits into a buffer, and all of it in a buffer.
    for (const int size : {100000, 12345}) {
        EXPECT_EQ(save(path("file"), QByteArray(size, 'x')), "File too large");
        EXPECT_EQ(contentOf("file"), older);
        EXPECT_EQ(names(), QStringList("file"));
    }
}

TEST_F(WholeFileTest, FullDiskLeavesTheOlderFile) {
    const SmallDisk disk(folder.path(), 32);
    if (!disk.isThere()) {
        GTEST_SKIP() << "mounting is not allowed";
    }
    create("file");
    for (const int size : {100000, 12345}) {
        create("rest", QByteArray(20000, 'r'));
        EXPECT_EQ(save(path("file"), QByteArray(size, 'x')), "No space left on device");
        EXPECT_EQ(contentOf("file"), older);
        EXPECT_EQ(names(), QStringList({"file", "rest"}));
    }
}

TEST_F(WholeFileTest, LinksStayAndTheirTargetIsWritten) {
    QDir(folder.path()).mkpath("there/inner");
    create("there/old");
    QFile::link("there/old", path("relative"));
    QFile::link("relative", path("twice"));
    QFile::link(path("there/fresh"), path("dangling"));
    QFile::link("dangling", path("danglingTwice"));
    // Seen from the linked folder, the file above is in "there", not beside the link.
    QFile::link("there/inner", path("linkedFolder"));
    QFile::link("../above", path("there/inner/up"));
    const std::vector<std::pair<const char*, const char*>> linksAndTargets{
        {"relative", "there/old"},
        {"twice", "there/old"},
        {"dangling", "there/fresh"},
        {"danglingTwice", "there/fresh"},
        {"linkedFolder/up", "there/above"}};
    for (const auto& [link, target] : linksAndTargets) {
        const QByteArray content = QByteArray(link) + " leads here";
        EXPECT_EQ(save(path(link), content), "") << link;
        EXPECT_TRUE(QFileInfo(path(link)).isSymLink()) << link;
        EXPECT_FALSE(QFileInfo(path(target)).isSymLink()) << link;
        EXPECT_EQ(contentOf(target), content) << link;
    }
    EXPECT_EQ(names().size(), 6);
}

TEST_F(WholeFileTest, LinksThatLeadNowhereCannotBeOpened) {
    QFile::link("loop", path("loop"));
    QFile::link("missing/file", path("lost"));
    const QString nowhere = "No such file or directory";
    const std::vector<std::pair<QString, QString>> namesAndReasons{
        {path("loop"), "Too many levels of symbolic links"},
        {path("lost"), nowhere},
        {path("missing/file"), nowhere},
        {"", nowhere}};
    for (const auto& [name, reason] : namesAndReasons) {
        const WholeFile file(name);
        EXPECT_FALSE(file.isOpen()) << name.toStdString();
        EXPECT_FALSE(file.isWritableInPlace()) << name.toStdString();
        EXPECT_EQ(file.errorString(), reason) << name.toStdString();
    }
    EXPECT_EQ(names(), QStringList({"loop", "lost"}));
}

TEST_F(WholeFileTest, AsManyLinksAreFollowedAsTheSystemFollows) {
    constexpr int mostLinks = 40;
    QString last = "file";
    const auto addLink = [&](int number) {
        const QString name = QString("link%1").arg(number);
        ASSERT_TRUE(QFile::link(last, folder.filePath(name)));
        last = name;
    };
    for (int i = 1; i <= mostLinks; ++i) {
        addLink(i);
    }
    EXPECT_EQ(save(folder.filePath(last)), "");
    EXPECT_EQ(::contentOf(folder.filePath(last)), newer);
    addLink(mostLinks + 1);
    EXPECT_EQ(WholeFile(folder.filePath(last)).errorString(), "Too many levels of symbolic links");
}

TEST_F(WholeFileTest, DevicesAreWrittenToAndStay) {
    const QString full = fullDevice(folder.path());
    QFile::link(full, path("linkToFull"));
    for (const QString& name : {full, path("linkToFull")}) {
        EXPECT_EQ(save(name), "No space left on device");
        EXPECT_EQ(save(name, QByteArray(100000, 'x')), "No space left on device");
        EXPECT_FALSE(QFileInfo(full).isFile());
        EXPECT_TRUE(QFileInfo::exists(full));
    }
    QFile::link("/dev/null", path("linkToNull"));
    withoutPrivileges([&] { EXPECT_EQ(save("/dev/null"), ""); });
}

TEST_F(WholeFileTest, PipeTakesAllAsLongAsItIsRead) {
    const QByteArray pipe = path("pipe").toLocal8Bit();
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    const QByteArray content(200000, 'p');
    QByteArray taken;
    std::thread reader([&] { taken = contentOf("pipe"); });
    EXPECT_EQ(save(pipe, content), "");
    reader.join();
    EXPECT_EQ(taken, content);

    reader = std::thread([&] { close(open(pipe.constData(), O_RDONLY)); });
    EXPECT_EQ(save(pipe, QByteArray(2000000, 'p')), "Broken pipe");
    reader.join();
    EXPECT_EQ(names(), QStringList("pipe"));
}

TEST_F(WholeFileTest, BrokenPipeEndsTheProgramElsewhereAsBefore) {
    { const WholeFile file(path("file")); }
    EXPECT_EQ(std::signal(SIGPIPE, SIG_DFL), SIG_DFL);
}

TEST_F(WholeFileTest, FolderCannotBeOpened) {
    WholeFile file(folder.path());
    EXPECT_FALSE(file.isOpen());
    EXPECT_FALSE(file.isWritableInPlace());
    EXPECT_EQ(file.errorString(), "Is a directory");
}

TEST_F(WholeFileTest, ReadOnlyFileOrFolderStaysAsItIs) {
    create("file");
    create("writable");
    chmod(path("file").toLocal8Bit().constData(), 0444);
    chmod(path("writable").toLocal8Bit().constData(), 0666);
    chmod(folder.path().toLocal8Bit().constData(), 0555);
    withoutPrivileges([&] {
        const WholeFile readOnly(path("file"));
        EXPECT_FALSE(readOnly.isOpen());
        EXPECT_FALSE(readOnly.isWritableInPlace());
        EXPECT_EQ(readOnly.errorString(), "Permission denied");
        const WholeFile fresh(path("new"));
        EXPECT_FALSE(fresh.isOpen());
        EXPECT_FALSE(fresh.isWritableInPlace());
        EXPECT_EQ(fresh.errorString(), "Permission denied");
        // Nothing can be put beside it.
        const WholeFile writable(path("writable"));
        EXPECT_FALSE(writable.isOpen());
        EXPECT_TRUE(writable.isWritableInPlace());
        EXPECT_EQ(writable.errorString(), "Permission denied");
    });
    chmod(folder.path().toLocal8Bit().constData(), 0700);
    EXPECT_EQ(contentOf("file"), older);
    EXPECT_EQ(contentOf("writable"), older);
    EXPECT_EQ(names(), QStringList({"file", "writable"}));
}
