#include "documents/journal.h"

#include "base/paths.h"
#include "base/safefile.h"
#include "base/texts.h"

#include <QDataStream>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
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

/// Beside a journal: a save that was begun when the document had been kept so many times.
struct BegunSave {
    qint64 number = 0;
    QString file;
    QByteArray hash;  ///< of what the file was to hold
};

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

/// Takes the records from the file where the journal is older than that, because the program ended when it had saved
/// and not yet kept what was left. Only the form can be unsaved then.
void takeBegunSave(Unsaved& unsaved, const BegunSave& save) {
    if (save.hash.isEmpty() || unsaved.number > save.number) {
        return;
    }
    const auto bytes = FileBytes::open(save.file);
    if (!bytes || contentHash(bytes->bytes()) != save.hash) {
        return;
    }
    unsaved.file = save.file;
    unsaved.fileHash = save.hash;
    unsaved.fileSize = bytes->bytes().size();
    unsaved.isChanged = false;
    unsaved.contents = [held = bytes->bytes().toByteArray()] { return held; };
}

/// What was kept in a file, its contents included.
Expected<Unsaved> readUnsaved(const QString& file) {
    return FileBytes::open(file)
        .and_then([](const FileBytes& bytes) { return unarchivedUnsaved(bytes.bytes()); })
        .and_then([&](auto&& read) -> Expected<Unsaved> {
            auto& [unsaved, contents] = read;
            // A name of its own folder only.
            const auto bytes = FileBytes::open(QFileInfo(file).path() + u'/' + QFileInfo(contents.name).fileName());
            if (!bytes || contentHash(bytes->bytes()) != contents.hash) {
                return failure(text("Main", "Unsaved work not readable"));
            }
            unsaved.contents = [held = bytes->bytes().toByteArray()] { return held; };
            takeBegunSave(unsaved, readBegunSave(file));
            return std::move(unsaved);
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
    // Also what was being written when the program ended; the lock removes itself.
    const QDir files(folder);
    for (const QString& name : files.entryList(QDir::Files | QDir::Hidden)) {
        if (files.filePath(name) != lockIn(folder)) {
            QFile::remove(files.filePath(name));
        }
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
    if (lock_ || parent_.isEmpty()) {
        return lock_ != nullptr;
    }
    folder_ = parent_ + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces);
    if (!QDir().mkpath(parent_) ||
        !QDir().mkdir(folder_, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner)) {
        return false;
    }
    auto lock = std::make_unique<QLockFile>(lockIn(folder_));
    lock->setStaleLockTime(0);
    if (!lock->tryLock()) {
        return false;
    }
    lock_ = std::move(lock);
    return true;
}

QString JournalFolder::newFile() {
    return make() ? folder_ + u'/' + QString::number(++files_) + QStringLiteral(".journal") : QString();
}

std::vector<JournalFolder::Left> JournalFolder::left() const {
    std::vector<Left> all;
    const QDir parent(parent_);
    for (const QString& name : parent.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Time | QDir::Reversed)) {
        Left left;
        left.folder = parent.filePath(name);
        left.lock = std::make_unique<QLockFile>(lockIn(left.folder));
        left.lock->setStaleLockTime(0);
        if (left.folder == folder_ || !left.lock->tryLock()) {
            continue;
        }
        const QDir folder(left.folder);
        for (const QString& file : folder.entryList({QStringLiteral("*.journal")}, QDir::Files, QDir::Name)) {
            if (auto unsaved = readUnsaved(folder.filePath(file)); unsaved && (unsaved->isChanged || unsaved->form)) {
                left.documents.push_back(std::move(*unsaved));
            }
        }
        if (left.documents.empty()) {
            left.discard();
        } else {
            all.push_back(std::move(left));
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
    if (file_.isEmpty()) {
        file_ = folder_.newFile();
    }
    if (file_.isEmpty()) {
        return;
    }
    unsaved->recordClass = recordClass_;
    unsaved->number = ++keptTimes_;
    isKept_ = true;
    if (!unsaved->version || version_.lock() != unsaved->version) {
        ++contentsNumber_;
        version_ = unsaved->version;
    }
    folder_.work().start([file = file_, number = contentsNumber_, last = kept_, now = std::move(*unsaved)] {
        // A journal that cannot be written must not disturb the work that it is for.
        const QString folder = QFileInfo(file).path() + u'/';
        ContentsFile contents = last->file;
        if (last->number != number) {
            const QByteArray bytes = now.contents();
            contents = {QFileInfo(file).baseName() + u'-' + QString::number(number) + contentsEnding,
                        contentHash(bytes)};
            if (!writePrivateFile(folder + contents.name, bytes)) {
                return;
            }
        }
        if (!writePrivateFile(file, archived(now, contents))) {
            return;
        }
        if (last->number != number && last->number > 0) {
            QFile::remove(folder + last->file.name);
        }
        *last = {number, contents};
    });
}

void Journal::keepNow() {
    keep();
    folder_.work().waitForDone();
}

void Journal::noteSave(const QString& file, const QByteArray& bytes) {
    if (isKept_) {
        static_cast<void>(
            writePrivateFile(begunSaveBeside(file_), archived(BegunSave{keptTimes_, file, contentHash(bytes)})));
    }
}

void Journal::drop() {
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
