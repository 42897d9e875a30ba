#include "documents/journal.h"

#include "base/paths.h"
#include "base/safefile.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
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

}  // namespace

void JournalPace::touch(qint64 now) {
    first_ = first_.value_or(now);
    last_ = now;
}

qint64 JournalPace::wait(qint64 now) const {
    return first_ ? std::max<qint64>(0, std::min(last_ + times_.pause, *first_ + times_.longest) - now) : 0;
}

void JournalFolder::Left::discard() {
    for (const QString& file : files) {
        QFile::remove(file);
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
            left.files.push_back(folder.filePath(file));
            const auto bytes = FileBytes::open(left.files.back());
            if (auto unsaved = bytes ? unarchivedUnsaved(bytes->bytes()) : tl::unexpected(bytes.error())) {
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
    : folder_(folder), document_(document), recordClass_(recordClass), pace_(folder.times()) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &Journal::keepWhenDue);
    connect(&document, &Document::touched, this, &Journal::touch);
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
    isKept_ = true;
    folder_.work().start([file = file_, kept = std::move(*unsaved)] {
        // A journal that cannot be written must not disturb the work that it is for.
        static_cast<void>(writePrivateFile(file, archived(kept)));
    });
}

void Journal::keepNow() {
    keep();
    folder_.work().waitForDone();
}

void Journal::drop() {
    timer_.stop();
    pace_.taken();
    if (std::exchange(isKept_, false)) {
        folder_.work().start([file = file_] { QFile::remove(file); });
    }
}

}  // namespace tavrel
