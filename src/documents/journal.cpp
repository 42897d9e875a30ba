#include "documents/journal.h"

#include "base/paths.h"
#include "base/safefile.h"
#include "base/texts.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QUuid>

#include <algorithm>

namespace tavrel {

namespace {

QString lockIn(const QString& folder) {
    return folder + QStringLiteral("/lock");
}

qint64 now() {
    return QDeadlineTimer::current().deadline();
}

const QString contentsEnding = QStringLiteral(".contents");
/// The folder, among those of the runs, of what could not be read.
const QString asideName = QStringLiteral("unreadable");
constexpr qint64 daysAside = 180;

/// Beside a journal: a save that was begun when the document had been kept so many times.
struct BegunSave {
    qint64 number = 0;
    QString file;
    QByteArray hash;  ///< of what the file was to hold
};

bool makePrivateFolder(const QString& folder) {
    return QDir().mkdir(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

QString begunSaveBeside(const QString& journal) {
    return journal + QStringLiteral(".save");
}

QByteArray archived(const BegunSave& save) {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << save.number << save.file << save.hash;
    return bytes;
}

BegunSave readBegunSave(const QString& journal) {
    BegunSave save;
    if (const auto bytes = FileBytes::open(begunSaveBeside(journal))) {
        QDataStream stream(bytes->bytes().toByteArray());
        stream.setVersion(QDataStream::Qt_6_4);
        stream >> save.number >> save.file >> save.hash;
    }
    return save;
}

/// Takes the records from that file, if it holds what it is to hold. Only the form is unsaved then.
bool takeFile(Unsaved& unsaved, const QString& file, const std::optional<QByteArray>& hash) {
    const auto bytes = FileBytes::open(file);
    if (!bytes) {
        return false;
    }
    const QByteArray held = contentHash(bytes->bytes());
    if (hash && held != *hash) {
        return false;
    }
    unsaved.file = file;
    unsaved.fileHash = held;
    unsaved.fileSize = bytes->bytes().size();
    unsaved.isChanged = false;
    unsaved.contents = [records = bytes->bytes().toByteArray()] { return records; };
    return true;
}

/// Takes the records from the file where the journal is older than that, because the program ended when it had saved
/// and not yet kept what was left.
bool takeBegunSave(Unsaved& unsaved, const BegunSave& save) {
    return !save.hash.isEmpty() && unsaved.number <= save.number && takeFile(unsaved, save.file, save.hash);
}

/// The records are lost: leaves what was typed, as a new record, beside the records of the file as it is now, or beside
/// none. It need not be the row of the same record there.
void takeFormAlone(Unsaved& unsaved) {
    if (!takeFile(unsaved, unsaved.file, std::nullopt)) {
        unsaved.file.clear();
        unsaved.isChanged = false;
    }
    unsaved.form->row = -1;
}

/// What was kept in a file, and the name of its contents if they were needed and are damaged.
struct ReadJournal {
    Unsaved unsaved;
    QString damaged = {};
};

Expected<ReadJournal> readJournal(const QDir& folder, const QString& name) {
    const QString file = folder.filePath(name);
    return FileBytes::open(file)
        .and_then([](const FileBytes& bytes) { return unarchivedUnsaved(bytes.bytes()); })
        .and_then([&](auto&& read) -> Expected<ReadJournal> {
            auto& [unsaved, contents] = read;
            if (takeBegunSave(unsaved, readBegunSave(file))) {
                return ReadJournal{std::move(unsaved)};
            }
            // A name of its own folder only.
            const QString contentsName = QFileInfo(contents.name).fileName();
            const auto bytes = FileBytes::open(folder.filePath(contentsName));
            if (bytes && contentHash(bytes->bytes()) == contents.hash) {
                unsaved.contents = [held = bytes->bytes().toByteArray()] { return held; };
                return ReadJournal{std::move(unsaved)};
            }
            if (!unsaved.isChanged && takeFile(unsaved, unsaved.file, unsaved.fileHash)) {
                return ReadJournal{std::move(unsaved)};
            }
            if (!unsaved.form) {
                return failure(text("Main", "Unsaved work not readable"));
            }
            takeFormAlone(unsaved);
            return ReadJournal{std::move(unsaved), contentsName};
        });
}

}  // namespace

/// The contents as they were written last; of the working thread alone.
struct KeptContents {
    int number = 0;
    ContentsFile file;
};

void JournalPace::touch(qint64 now) {
    first_ = first_.value_or(now);
    last_ = now;
}

qint64 JournalPace::wait(qint64 now) const {
    return first_ ? std::max<qint64>(0, std::min(last_ + times_.pause, *first_ + times_.longest) - now) : 0;
}

void JournalFolder::Left::discard() {
    // Also what was being written when the program ended, and nothing of anyone else's; the lock removes itself.
    const QDir files(folder);
    const QStringList own{QStringLiteral("*.journal"), QStringLiteral("*.journal.save"), u'*' + contentsEnding,
                          QStringLiteral(".tavrel-*")};
    for (const QString& name : files.entryList(own, QDir::Files | QDir::Hidden)) {
        QFile::remove(files.filePath(name));
    }
    lock.reset();
    QDir().rmdir(folder);
}

JournalFolder::JournalFolder(const QString& parent, JournalPace::Times times) : parent_(parent), times_(times) {
    work_.setMaxThreadCount(1);
}

JournalFolder::~JournalFolder() {
    work_.waitForDone();
    if (lock_) {
        lock_.reset();
        // Only when nothing is left in it.
        QDir().rmdir(folder_);
    }
}

bool JournalFolder::make() {
    if (parent_.isEmpty()) {
        return false;
    }
    if (folder_.isEmpty()) {
        folder_ = parent_ + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces);
    }
    // Whoever tidies up may remove it while the program runs.
    if (lock_ && pathExists(lockIn(folder_))) {
        return true;
    }
    lock_.reset();
    if (!QDir().mkpath(parent_) || (!makePrivateFolder(folder_) && !QFileInfo(folder_).isDir())) {
        return false;
    }
    auto lock = std::make_unique<QLockFile>(lockIn(folder_));
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0)) {
        return false;
    }
    lock_ = std::move(lock);
    return true;
}

QString JournalFolder::newFile() {
    return folder_ + u'/' + QString::number(++files_) + QStringLiteral(".journal");
}

/// False when something of it stays where it is.
bool JournalFolder::keepAside(const QString& folder, const QStringList& names) {
    const QString aside = parent_ + u'/' + asideName;
    makePrivateFolder(aside);
    return std::all_of(names.begin(), names.end(), [&](const QString& name) {
        const QString kept = aside + u'/' + QFileInfo(folder).fileName() + u'-' + name;
        if (!QFile::rename(folder + u'/' + name, kept)) {
            return false;
        }
        keptAside_ = aside;
        // Its time there begins now, however long ago it was written.
        QFile file(kept);
        static_cast<void>(file.open(QIODevice::ReadWrite) &&
                          file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime));
        return true;
    });
}

void JournalFolder::sweepAside() const {
    const QDir aside(parent_ + u'/' + asideName);
    const QDateTime oldest = QDateTime::currentDateTime().addDays(-daysAside);
    for (const QFileInfo& file : aside.entryInfoList(QDir::Files | QDir::Hidden)) {
        if (file.lastModified() < oldest) {
            QFile::remove(file.filePath());
        }
    }
    // Only when nothing is left in it.
    QDir().rmdir(aside.path());
}

std::vector<JournalFolder::Left> JournalFolder::left() {
    std::vector<Left> all;
    keptAside_.clear();
    // No name would mean the folder that the program was started in.
    if (!keepsAnything()) {
        return all;
    }
    sweepAside();
    const QDir parent(parent_);
    for (const QString& name : parent.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Time | QDir::Reversed)) {
        if (name == asideName) {
            continue;
        }
        Left left;
        left.folder = parent.filePath(name);
        left.lock = std::make_unique<QLockFile>(lockIn(left.folder));
        left.lock->setStaleLockTime(0);
        if (left.folder == folder_ || FileLock::take(*left.lock, {}) || !left.lock->isLocked()) {
            continue;
        }
        const QDir folder(left.folder);
        bool isSafe = true;
        for (const QString& file : folder.entryList({QStringLiteral("*.journal")}, QDir::Files, QDir::Name)) {
            auto read = readJournal(folder, file);
            if (!read) {
                const QString contents = QFileInfo(file).baseName() + u'-' + u'*' + contentsEnding;
                isSafe = keepAside(left.folder, folder.entryList({contents}, QDir::Files) << file) && isSafe;
                continue;
            }
            if (!read->damaged.isEmpty() && folder.exists(read->damaged)) {
                keepAside(left.folder, {read->damaged});
            }
            if (read->unsaved.isChanged || read->unsaved.form) {
                left.documents.push_back(std::move(read->unsaved));
            }
        }
        if (!left.documents.empty()) {
            all.push_back(std::move(left));
        } else if (isSafe) {
            left.discard();
        }
    }
    return all;
}

Journal::Journal(JournalFolder& folder, Document& document, const QString& recordClass)
    : folder_(folder),
      document_(document),
      recordClass_(recordClass),
      pace_(folder.times()),
      kept_(std::make_shared<KeptContents>()) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &Journal::keepWhenDue);
    connect(&document, &Document::touched, this, &Journal::touch);
    connect(&document, &Document::aboutToWrite, this, &Journal::noteSave);
    connect(&document, &Document::changedStateChanged, this, [this](bool changed) {
        // What was saved needs no journal, and the next start should not hear of it.
        changed ? touch() : keep();
    });
}

void Journal::touch() {
    pace_.touch(now());
    if (!timer_.isActive()) {
        timer_.start(static_cast<int>(pace_.wait(now())));
    }
}

void Journal::keepWhenDue() {
    // Further keystrokes have put it off.
    if (const qint64 wait = pace_.wait(now()); wait > 0) {
        timer_.start(static_cast<int>(wait));
        return;
    }
    keep();
}

void Journal::keep() {
    pace_.taken();
    timer_.stop();
    auto unsaved = document_.unsaved();
    if (!unsaved) {
        drop();
        return;
    }
    if (!folder_.keepsAnything()) {
        return;
    }
    if (!folder_.make()) {
        noteOutcome(false);
        return;
    }
    if (file_.isEmpty()) {
        file_ = folder_.newFile();
    }
    unsaved->recordClass = recordClass_;
    unsaved->number = ++keptTimes_;
    isKept_ = true;
    if (!unsaved->version || version_.lock() != unsaved->version) {
        ++contentsNumber_;
        version_ = unsaved->version;
    }
    auto write = [file = file_, number = contentsNumber_, last = kept_, now = std::move(*unsaved)] {
        const QString folder = QFileInfo(file).path() + u'/';
        ContentsFile contents = last->file;
        if (last->number != number || !QFile::exists(folder + contents.name)) {
            const QByteArray bytes = now.contents();
            contents = {QFileInfo(file).baseName() + u'-' + QString::number(number) + contentsEnding,
                        contentHash(bytes)};
            if (!writePrivateFile(folder + contents.name, bytes)) {
                return false;
            }
        }
        if (!writePrivateFile(file, archived(now, contents))) {
            return false;
        }
        if (last->number != number && last->number > 0) {
            QFile::remove(folder + last->file.name);
        }
        *last = {number, contents};
        return true;
    };
    folder_.work().start([write = std::move(write), reports = &folder_.reports(), journal = QPointer<Journal>(this)] {
        const auto tell = [journal, isWritten = write()] {
            if (journal) {
                journal->noteOutcome(isWritten);
            }
        };
        QMetaObject::invokeMethod(reports, tell, Qt::QueuedConnection);
    });
}

/// A journal that cannot be written must not disturb the work that it is for; that it cannot is told once. What stands
/// in the way may go, so it is tried again though nothing more is typed.
void Journal::noteOutcome(bool isWritten) {
    const bool wasTroubled = std::exchange(isTroubled_, !isWritten);
    if (!isWritten) {
        pace_.touch(now());
        timer_.start(static_cast<int>(folder_.times().longest));
        if (!wasTroubled) {
            Q_EMIT notKept();
        }
    } else if (wasTroubled) {
        Q_EMIT keptAgain();
    }
}

bool Journal::keepNow() {
    keep();
    folder_.work().waitForDone();
    QCoreApplication::sendPostedEvents(&folder_.reports(), QEvent::MetaCall);
    return !isTroubled_;
}

void Journal::noteSave(const QString& file, const QByteArray& bytes) {
    if (isKept_) {
        static_cast<void>(
            writePrivateFile(begunSaveBeside(file_), archived(BegunSave{keptTimes_, file, contentHash(bytes)})));
    }
}

void Journal::drop() {
    noteOutcome(true);
    timer_.stop();
    pace_.taken();
    if (std::exchange(isKept_, false)) {
        folder_.work().start([file = file_, last = kept_] {
            QFile::remove(file);
            QFile::remove(begunSaveBeside(file));
            QFile::remove(QFileInfo(file).path() + u'/' + last->file.name);
            *last = {};
        });
    }
}

}  // namespace tavrel
