#pragma once

#include "documents/document.h"
#include "documents/unsaved.h"

#include <QLockFile>
#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tavrel {

/// When to keep what is being typed: after a pause, but soon also while there is none. Times in milliseconds of any
/// clock that only goes forward.
class JournalPace {
public:
    struct Times {
        qint64 pause = 2'000;     ///< after the last key
        qint64 longest = 20'000;  ///< after the first that is not kept
    };

    explicit JournalPace(Times times) : times_(times) {}

    /// Something was typed or changed.
    void touch(qint64 now);
    /// How long to wait yet; 0: it is time.
    qint64 wait(qint64 now) const;
    /// It is being kept.
    void taken() { first_.reset(); }

private:
    Times times_;
    std::optional<qint64> first_;
    qint64 last_ = 0;
};

/// The folder in which one run of the program keeps what is unsaved, until it ends in good order. A lock tells the next
/// run that this one is alive.
class JournalFolder {
public:
    /// What an earlier run left.
    struct Left {
        QString folder;
        std::unique_ptr<QLockFile> lock;
        std::vector<Unsaved> documents;

        void discard();
    };

    /// Within the folder given; nothing is made before it is needed. Without a name nothing is kept.
    explicit JournalFolder(const QString& parent, JournalPace::Times times = {});
    ~JournalFolder();
    JournalFolder(const JournalFolder&) = delete;
    JournalFolder& operator=(const JournalFolder&) = delete;

    bool keepsAnything() const { return !parent_.isEmpty(); }
    /// Makes the folder, also when it was removed meanwhile; false when nothing can be kept.
    bool make();
    /// A name for one more document, once the folder is made.
    QString newFile();
    /// What runs that have ended have left, unless another program looks at it just now. What cannot be read is kept
    /// aside for some months.
    std::vector<Left> left();
    /// Where that lies, when left() found any; otherwise empty.
    const QString& keptAside() const { return keptAside_; }
    /// Writing and removing happen one after the other, beside the windows.
    QThreadPool& work() { return work_; }
    /// Lives in the windows' thread: what work reports, it reports through this.
    QObject& reports() { return reports_; }
    JournalPace::Times times() const { return times_; }

private:
    bool keepAside(const QString& folder, const QStringList& names);
    void sweepAside() const;

    QString parent_;
    JournalPace::Times times_;
    QString folder_;
    int files_ = 0;
    std::unique_ptr<QLockFile> lock_;
    QString keptAside_;
    QObject reports_;
    QThreadPool work_;
};

struct KeptContents;

/// Keeps what is unsaved of one document, soon after each change, without holding up its windows.
class Journal : public QObject {
    Q_OBJECT

public:
    Journal(JournalFolder& folder, Document& document, const QString& recordClass);

    /// Keeps it now; returns when it is on the disk. False when it could not be kept.
    bool keepNow();
    /// The document is closed: nothing of it is to be kept.
    void drop();
    /// Where it is kept.
    const QString& file() const { return file_; }

Q_SIGNALS:
    /// What is unsaved could not be kept; told again only when it could be kept meanwhile.
    void notKept();
    /// It is kept, or need no longer be, where it could not be kept before.
    void keptAgain();

private:
    void touch();
    void keepWhenDue();
    void keep();
    void noteOutcome(bool isWritten);
    /// Should the program end in the middle of a save, the journal is older than the file, and tells so.
    void noteSave(const QString& file, const QByteArray& bytes);

    JournalFolder& folder_;
    Document& document_;
    QString recordClass_;
    QString file_;
    JournalPace pace_;
    QTimer timer_;
    bool isKept_ = false;
    bool isTroubled_ = false;
    qint64 keptTimes_ = 0;
    // The contents are written only when they are others than before. The number names their file.
    std::weak_ptr<const void> version_;
    int contentsNumber_ = 0;
    std::shared_ptr<KeptContents> kept_;
};

}  // namespace tavrel
