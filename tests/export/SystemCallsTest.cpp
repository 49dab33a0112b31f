// What the system does with a file's writing that neither a full disk nor a broken pipe shows: it
// fails late, and it is interrupted.

#include "export/WholeFile.h"
#include "tests/support/FileContent.h"

#include <QFile>
#include <QTemporaryDir>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

/** From now on nothing that this process writes can be brought to the disk; false if it can. */
bool breakDisk() {
    std::array<sock_filter, 4> rules{
        {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
         BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_fsync, 0, 1),
         BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EIO),
         BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)}};
    const sock_fprog program{rules.size(), rules.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

/** Whether the system lets a process have such rules; tried in one that ends at once. */
bool canBreakDisk() {
    const pid_t child = fork();
    if (child == 0) {
        std::_Exit(breakDisk() ? 0 : 1);
    }
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::atomic<int> interruptions{0};

/** As long as it lives, a clock interrupts what the process does every millisecond. */
class InterruptingClock {
public:
    InterruptingClock() {
        interruptions = 0;
        struct sigaction action {};
        action.sa_handler = [](int /*signal*/) {
            ++interruptions;
        };
        // Without SA_RESTART: calls of the system fail when they are interrupted.
        sigaction(SIGALRM, &action, &previous);
        constexpr itimerval everyMillisecond{{0, 1000}, {0, 1000}};
        setitimer(ITIMER_REAL, &everyMillisecond, nullptr);
    }
    ~InterruptingClock() {
        constexpr itimerval never{};
        setitimer(ITIMER_REAL, &never, nullptr);
        sigaction(SIGALRM, &previous, nullptr);
    }
    InterruptingClock(const InterruptingClock&) = delete;
    InterruptingClock& operator=(const InterruptingClock&) = delete;

private:
    struct sigaction previous {};
};

/** Reads a pipe to its end, and takes a part only after the writer was interrupted again. */
QByteArray readSlowly(const QByteArray& pipe) {
    sigset_t alarm;
    sigemptyset(&alarm);
    sigaddset(&alarm, SIGALRM);
    pthread_sigmask(SIG_BLOCK, &alarm, nullptr);
    QByteArray taken;
    std::array<char, 30011> part{};
    const int file = open(pipe.constData(), O_RDONLY);
    ssize_t count = 0;
    do {
        const int before = interruptions;
        while (interruptions < before + 3) {
            std::this_thread::yield();
        }
        count = read(file, part.data(), part.size());
        taken.append(part.data(), static_cast<int>(count));
    } while (count > 0);
    close(file);
    return taken;
}

} // namespace

TEST(SystemCalls, FileThatDoesNotReachTheDiskLeavesTheOlderOne) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("file");
    QFile older(path);
    ASSERT_TRUE(older.open(QIODevice::WriteOnly));
    older.write("older");
    older.close();
    if (!canBreakDisk()) {
        GTEST_SKIP() << "no process here may narrow its own system calls";
    }
    const auto save = [&] {
        WholeFile file(path);
        ASSERT_TRUE(breakDisk());
        file.write("newer", 5);
        std::_Exit(!file.commit() && file.errorString() == "Input/output error" ? 0 : 1);
    };
    EXPECT_EXIT(save(), testing::ExitedWithCode(0), "");
    EXPECT_EQ(contentOf(path), "older");
}

TEST(SystemCalls, InterruptedWritesGoOnWhereTheyStopped) {
    const QTemporaryDir folder;
    const QByteArray pipe = folder.filePath("pipe").toLocal8Bit();
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    QByteArray content;
    // No two parts of a pipe are alike.
    while (content.size() < 400000) {
        content += QByteArray::number(content.size()) + ' ';
    }
    const InterruptingClock clock;
    QByteArray taken;
    std::thread reader([&] { taken = readSlowly(pipe); });
    QString reason;
    {
        WholeFile file(pipe);
        file.write(content.constData(), static_cast<std::size_t>(content.size()));
        file.commit();
        reason = file.errorString();
    }
    reader.join();
    EXPECT_EQ(reason, "");
    EXPECT_EQ(taken, content);
}
