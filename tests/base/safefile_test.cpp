#include "base/safefile.h"

#include "base/faultycalls.h"
#include "base/paths.h"
#include "support/files.h"
#include "support/printing.h"

#include <QDir>
#include <QTemporaryDir>

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tavrel {

namespace {

struct stat statusOf(const QString& path) {
    struct stat status {};
    EXPECT_EQ(::stat(pathBytes(path).constData(), &status), 0);
    return status;
}
bool setMode(const QString& path, mode_t mode) {
    return ::chmod(pathBytes(path).constData(), mode) == 0;
}

struct SafeFile : testing::Test {
    QString path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }
    QStringList names() const {
        return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir folder_;
};

TEST_F(SafeFile, replacesAFileAndKeepsItsModeAndLinks) {
    const auto old = ::umask(027);
    EXPECT_TRUE(writeFile(path("été.carnet"), "one"));
    ::umask(old);
    EXPECT_EQ(modeOf(path("été.carnet")), 0640U);
    ASSERT_TRUE(setMode(path("été.carnet"), 0604));
    ASSERT_TRUE(QDir(path("")).mkdir(QStringLiteral("sub")));
    ASSERT_TRUE(QFile::link(QStringLiteral("../été.carnet"), path("sub/link")));
    ASSERT_TRUE(QFile::link(path("sub/link"), path("chain")));
    ASSERT_TRUE(QFile::link(path("new"), path("dangling")));

    const auto before = FileBytes::open(path("chain"));
    ASSERT_TRUE(before);
    EXPECT_TRUE(writeFile(path("chain"), QByteArray(100'000, 'x')));
    EXPECT_EQ(contentsOf(path("été.carnet")).size(), 100'000);
    EXPECT_EQ(modeOf(path("été.carnet")), 0604U);
    EXPECT_TRUE(writeFile(path("dangling"), ""));
    EXPECT_EQ(contentsOf(path("new")), "");
    EXPECT_TRUE(QFileInfo(path("chain")).isSymLink() && QFileInfo(path("dangling")).isSymLink());
    EXPECT_EQ(before->bytes().toByteArray(), "one") << "a file being read is not changed under its reader";
    EXPECT_EQ(names().size(), 5) << names().join(u' ').toStdString();

    const auto empty = FileBytes::open(path("new"));
    ASSERT_TRUE(empty);
    EXPECT_TRUE(empty->bytes().isEmpty());
}

TEST_F(SafeFile, leavesEverythingAsItWasWhenItFails) {
    ASSERT_TRUE(writeFile(path("file"), "old"));
    ASSERT_TRUE(QDir(path("")).mkdir(QStringLiteral("folder")));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"missing/file", "The folder does not exist.", "There is no such file."},
        {"file/below", "The folder does not exist.", "There is no such file."},
        {"folder", "It is a folder, not a file.", "It is a folder, not a file."},
        {"pipe", "It is not a regular file.", "It is not a regular file."}};
    for (const auto& [file, unwritten, unread] : cases) {
        const auto written = writeFile(path(file), "new");
        const auto read = FileBytes::open(path(file));
        ASSERT_FALSE(written || read) << file;
        const QString name = QFileInfo(path(file)).fileName();
        EXPECT_EQ(written.error().sentence,
                  QStringLiteral("“%1” could not be saved: %2").arg(name, QLatin1String(unwritten)));
        EXPECT_EQ(read.error().sentence,
                  QStringLiteral("“%1” could not be opened: %2").arg(name, QLatin1String(unread)));
        EXPECT_TRUE(written.error().detail.contains(path(file)));
    }
    EXPECT_EQ(names(), (QStringList{QStringLiteral("file"), QStringLiteral("folder"), QStringLiteral("pipe")}));
}

/// Does something in a process of its own and says how that ended, as waitpid() does.
int inChild(const std::function<bool()>& work) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(work() ? 0 : 1);
    }
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return status;
}

bool becomeUser(uid_t user, std::vector<gid_t> groups) {
    return ::setgroups(groups.size(), groups.data()) == 0 && ::setgid(groups.front()) == 0 && ::setuid(user) == 0;
}

TEST_F(SafeFile, followsLinksAsTheSystemDoes) {
    // A/B is reached as C/b, and the link in it leads up from where it really is.
    ASSERT_TRUE(QDir(path("")).mkpath(QStringLiteral("A/B")) && QDir(path("")).mkdir(QStringLiteral("C")));
    ASSERT_TRUE(QFile::link(QStringLiteral("../r.carnet"), path("A/B/l.carnet")));
    ASSERT_TRUE(QFile::link(QStringLiteral("../A/B"), path("C/b")));
    ASSERT_TRUE(writeFile(path("C/b/l.carnet"), "new")) << "the link leads nowhere yet";
    EXPECT_EQ(contentsOf(path("A/r.carnet")), "new");
    ASSERT_TRUE(writeFile(path("C/r.carnet"), "another"));
    ASSERT_TRUE(writeFile(path("C/b/l.carnet"), "newer"));
    EXPECT_EQ(contentsOf(path("A/r.carnet")), "newer");
    EXPECT_EQ(contentsOf(path("C/r.carnet")), "another");

    ASSERT_TRUE(QFile::link(QStringLiteral("loop"), path("loop")));
    EXPECT_FALSE(writeFile(path("loop"), ""));
    ASSERT_TRUE(QFile::link(QStringLiteral("missing/file"), path("astray")));
    EXPECT_FALSE(writeFile(path("astray"), ""));
}

TEST_F(SafeFile, takesNamesByTheirBytes) {
    const QByteArray name = QFile::encodeName(path("")) + "/\xe9t\xe9 \xed\xb2\x80 \xc3\xa9.carnet";
    const QString text = pathFromBytes(name);
    EXPECT_EQ(pathBytes(text), name);
    EXPECT_TRUE(shownName(text).endsWith(u" é.carnet") && shownName(text).contains(u'\xFFFD'));
    ASSERT_TRUE(writeFile(text, "bytes"));
    EXPECT_EQ(::access(name.constData(), F_OK), 0);
    const auto read = FileBytes::open(text);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->bytes(), QByteArrayView("bytes"));
    EXPECT_TRUE(pathExists(text));
    EXPECT_EQ(pathBytes(canonicalPath(text)).right(10), name.right(10));
    ASSERT_EQ(::unlink(name.constData()), 0);
}

TEST_F(SafeFile, keepsAccessListsAndUserAttributes) {
    const QString file = path("file");
    ASSERT_TRUE(writeFile(file, "old"));
    const QByteArray name = pathBytes(file);
    // Owner rw, user 1 r, group r, mask r, others nothing: version 2, then tag, permissions and number of each.
    const QByteArray list = QByteArray::fromHex(
        "02000000"
        "01000600ffffffff"
        "0200040001000000"
        "04000400ffffffff"
        "10000400ffffffff"
        "20000000ffffffff");
    if (::setxattr(name.constData(), "system.posix_acl_access", list.constData(), static_cast<std::size_t>(list.size()),
                   0) != 0 ||
        ::setxattr(name.constData(), "user.tag", "blue", 4, 0) != 0) {
        GTEST_SKIP() << "the file system keeps none";
    }
    ASSERT_TRUE(writeFile(file, "new"));
    QByteArray held(100, '\0');
    held.truncate(::getxattr(name.constData(), "system.posix_acl_access", held.data(), 100));
    EXPECT_EQ(held, list);
    EXPECT_EQ(::getxattr(name.constData(), "user.tag", held.data(), 4), 4);
    EXPECT_EQ(held.left(4), "blue");
    EXPECT_EQ(modeOf(file), 0640U);

    // A folder's list is for its new files; an old one without a list gets none.
    ASSERT_EQ(::setxattr(QFile::encodeName(path("")).constData(), "system.posix_acl_default", list.constData(),
                         static_cast<std::size_t>(list.size()), 0),
              0);
    ASSERT_EQ(::removexattr(name.constData(), "system.posix_acl_access"), 0);
    ASSERT_TRUE(setMode(file, 0660));
    ASSERT_TRUE(writeFile(file, "newer"));
    EXPECT_LT(::getxattr(name.constData(), "system.posix_acl_access", nullptr, 0), 0);
    EXPECT_EQ(modeOf(file), 0660U);
    ASSERT_TRUE(writeFile(path("second"), ""));
    EXPECT_EQ(::getxattr(QFile::encodeName(path("second")).constData(), "system.posix_acl_access", nullptr, 0), 44);
    EXPECT_EQ(modeOf(path("second")), 0640U);
}

TEST_F(SafeFile, keepsWhatTheOwnerAndItsGroupMayDo) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "needs several users";
    }
    constexpr uid_t owner = 61001;
    constexpr uid_t writer = 61002;
    constexpr gid_t shared = 61003;
    ASSERT_TRUE(setMode(path(""), 0777));
    qputenv("XDG_STATE_HOME", QFile::encodeName(path("state")));
    ASSERT_TRUE(QDir(path("")).mkdir(QStringLiteral("state")));
    ASSERT_TRUE(setMode(path("state"), 0777));
    const QString file = path("shared");
    // Anyone may write the first, so another owner takes nothing from the one it had; the second goes on being its own.
    for (const auto& [allowed, ownerAfterwards] : {std::pair<mode_t, uid_t>{0666, writer}, {0660, owner}}) {
        QFile::remove(file);
        ASSERT_TRUE(writeFile(file, "old"));
        ASSERT_TRUE(::chown(pathBytes(file).constData(), owner, shared) == 0 && setMode(file, allowed));
        EXPECT_EQ(inChild([&] {
                      return becomeUser(writer, {writer, shared}) && writeFile(file, "new").has_value();
                  }),
                  0);
        EXPECT_EQ(contentsOf(file), "new");
        EXPECT_EQ(statusOf(file).st_uid, ownerAfterwards);
        EXPECT_EQ(statusOf(file).st_gid, shared);
        EXPECT_EQ(modeOf(file), allowed);
        // Where a copy cannot have the same, it is its maker's alone.
        const QString copy = file + u'~';
        EXPECT_EQ(inChild([&] { return becomeUser(writer, {writer, shared}) && copyFile(file, copy).has_value(); }), 0);
        EXPECT_EQ(statusOf(copy).st_uid, writer);
        EXPECT_EQ(modeOf(copy), ownerAfterwards == writer ? allowed : 0600U);
    }
    // A file that may be written in a folder that may not.
    ASSERT_TRUE(setMode(path(""), 0755));
    EXPECT_EQ(inChild([&] {
                  return becomeUser(writer, {writer, shared}) && writeFile(file, "in place").has_value() &&
                         !writeFile(path("beside"), "").has_value();
              }),
              0);
    EXPECT_EQ(contentsOf(file), "in place");
    EXPECT_TRUE(QDir(path("state/tavrel")).isEmpty());
    qputenv("XDG_STATE_HOME", qgetenv("XDG_CONFIG_HOME"));
}

TEST_F(SafeFile, writesAFileThatIsMountedByItself) {
    ASSERT_TRUE(writeFile(path("real"), "old") && writeFile(path("mounted"), ""));
    const int status = inChild([&] {
        // Where mounting is not allowed there is nothing to check.
        return ::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
               ::mount(pathBytes(path("real")).constData(), pathBytes(path("mounted")).constData(), nullptr, MS_BIND,
                       nullptr) != 0 ||
               (writeFile(path("mounted"), "a longer text") && writeFile(path("mounted"), "new"));
    });
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(contentsOf(path("real")) == "new" || ::geteuid() != 0) << contentsOf(path("real")).toStdString();
}

TEST_F(SafeFile, takesTheNewContentsOfSeveralFilesTogether) {
    ASSERT_TRUE(writeFile(path("1"), "old") && QDir(path("")).mkdir(QStringLiteral("3")));
    EXPECT_FALSE(writeFiles({{path("1"), "new"}, {path("2"), "new"}, {path("3"), "new"}}));
    EXPECT_EQ(contentsOf(path("1")), "old");
    EXPECT_EQ(names(), (QStringList{QStringLiteral("1"), QStringLiteral("3")}));
    // More of them than the program may have open.
    EXPECT_EQ(inChild([&] {
                  std::vector<FileContents> many;
                  for (int number = 10; number < 50; ++number) {
                      many.push_back({path(QByteArray::number(number).constData()), "new"});
                  }
                  struct rlimit few {};
                  ::getrlimit(RLIMIT_NOFILE, &few);
                  few.rlim_cur = 30;
                  return ::setrlimit(RLIMIT_NOFILE, &few) == 0 && writeFiles(many).has_value();
              }),
              0);
    EXPECT_EQ(contentsOf(path("49")), "new");
}

TEST_F(SafeFile, staysReadableWhenAnotherCutsItShort) {
    ASSERT_TRUE(writeFile(path("file"), QByteArray(1 << 20, 'x')));
    const auto read = FileBytes::open(path("file"));
    ASSERT_TRUE(read);
    ASSERT_EQ(::truncate(pathBytes(path("file")).constData(), 10), 0);
    EXPECT_EQ(read->bytes().toByteArray().count('x'), 1 << 20);
}

TEST_F(SafeFile, tellsWhatBecameOfAFile) {
    using State = FileIdentity::State;
    const QString file = path("file");
    const QByteArray name = pathBytes(file);
    const auto written = replaceFile(file, "one");
    ASSERT_TRUE(written);
    const auto read = FileBytes::open(file);
    ASSERT_TRUE(read);
    for (FileIdentity identity : {*written, read->identity(contentHash("one"))}) {
        ASSERT_TRUE(writeFile(file, "one"));
        EXPECT_EQ(identity.stateOf(name), State::same) << "another file of the same contents";
        const struct stat before = statusOf(file);
        ASSERT_TRUE(writeFile(file, "two"));
        const timespec times[] = {before.st_atim, before.st_mtim};
        ASSERT_EQ(::utimensat(AT_FDCWD, name.constData(), times, 0), 0);
        EXPECT_EQ(identity.stateOf(name), State::changed) << "of the same size and time";
        ASSERT_TRUE(writeFile(file, "longer"));
        EXPECT_EQ(identity.stateOf(name), State::changed);
        ASSERT_TRUE(QFile::remove(file));
        EXPECT_EQ(identity.stateOf(name), State::gone);
    }
}

/// A save for the matrices: of a new file, onto an old one, or onto one that cannot be replaced.
struct Save {
    const char* name;
    const char* failing;  ///< a call that always fails
    int error;
    bool exists;
};
const Save saves[] = {{"new", "", 0, false},
                      {"replaced", "", 0, true},
                      {"without unnamed files", "linkat", EPERM, true},
                      {"in place", "rename", EBUSY, true}};

struct SaveFaults : SafeFile, testing::WithParamInterface<Save> {
    SaveFaults() { qputenv("XDG_STATE_HOME", QFile::encodeName(path("state"))); }
    ~SaveFaults() override { qputenv("XDG_STATE_HOME", qgetenv("XDG_CONFIG_HOME")); }

    void begin() {
        FaultyCalls::failAlways({}, 0);
        QDir(path("folder")).removeRecursively();
        QDir(path("state")).removeRecursively();
        ASSERT_TRUE(QDir(path("")).mkpath(QStringLiteral("folder")) && QDir(path("")).mkpath(QStringLiteral("state")));
        if (GetParam().exists) {
            ASSERT_TRUE(writeFile(file(), "old"));
            ASSERT_TRUE(setMode(file(), 0640));
        }
        FaultyCalls::failAlways(GetParam().failing, GetParam().error);
    }
    QString file() const { return path("folder/file"); }
    QStringList left() const { return QDir(path("folder")).entryList(QDir::Files | QDir::Hidden | QDir::System); }
    bool isOld() const { return GetParam().exists ? contentsOf(file()) == "old" : !QFile::exists(file()); }
    QString copy() const {
        const QDir state(path("state/tavrel"));
        const QStringList copies = state.entryList(QDir::Files);
        return copies.isEmpty() ? QString() : state.filePath(copies.first());
    }
};

TEST_P(SaveFaults, leaveTheFileOldOrNewWhateverFails) {
    const QByteArray bytes("new contents");
    for (const int error : {EIO, ENOSPC, EACCES, EINTR}) {
        int calls = 0;
        int at = 0;
        // To the first that was not reached.
        do {
            ++at;
            begin();
            FaultyCalls::failAt(at, error, at % 2 == 0);
            const bool saved = writeFile(file(), bytes).has_value();
            calls = FaultyCalls::disarm();
            FaultyCalls::failAlways({}, 0);
            SCOPED_TRACE(testing::Message() << "call " << at << " of " << calls << ", error " << error);
            ASSERT_TRUE(saved ? contentsOf(file()) == bytes : isOld());
            const QLatin1StringView failed(FaultyCalls::failed());
            if (error == EINTR && (failed == u"read" || failed == u"write" || failed == u"pwrite")) {
                ASSERT_TRUE(saved) << "what a signal interrupts goes on";
            }
            // A removal that fails is made up for by the next save.
            if (failed != QLatin1StringView("unlink")) {
                ASSERT_EQ(left().size(), saved || GetParam().exists ? 1 : 0);
            }
            if (GetParam().exists) {
                ASSERT_EQ(modeOf(file()), 0640U);
            }
        } while (calls >= at);
        EXPECT_GT(at, 8);
    }
}

TEST_P(SaveFaults, leaveTheFileOldOrNewWhenTheProgramEnds) {
    const QByteArray bytes("new contents");
    for (const int signal : {SIGKILL, SIGTERM}) {
        bool ended = true;
        for (int at = 1; ended; ++at) {
            begin();
            const int status = inChild([&] {
                FaultyCalls::signalAt(at / 2 + 1, signal, at % 2 == 1);
                const bool saved = writeFile(file(), bytes).has_value();
                FaultyCalls::disarm();
                return saved;
            });
            FaultyCalls::failAlways({}, 0);
            SCOPED_TRACE(testing::Message() << "signal " << signal << " at " << at / 2 + 1 << '/' << at % 2);
            ended = WIFSIGNALED(status);
            ASSERT_TRUE(ended ? WTERMSIG(status) == signal : WEXITSTATUS(status) == 0);
            ASSERT_LT(at, 300);
            const bool whole = isOld() || contentsOf(file()) == bytes;
            // One that cannot be replaced has its old contents elsewhere for the time.
            ASSERT_TRUE(whole || (!copy().isEmpty() && contentsOf(copy()) == "old" && modeOf(copy()) == 0600));
            for (const QString& name : left()) {
                const QString path = QDir(this->path("folder")).filePath(name);
                ASSERT_TRUE(name == u"file" || signal == SIGKILL) << name.toStdString();
                ASSERT_TRUE(name == u"file" || modeOf(path) == 0600U || contentsOf(path) == bytes)
                    << name.toStdString();
            }
            ASSERT_TRUE(writeFile(file(), "next"));
            ASSERT_EQ(left(), QStringList(QStringLiteral("file"))) << "the next save sweeps";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Every, SaveFaults, testing::ValuesIn(saves), [](const auto& suite) {
    return QString::fromLatin1(suite.param.name).remove(u' ').toStdString();
});

}  // namespace

}  // namespace tavrel
