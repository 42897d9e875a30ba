#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <optional>

namespace tavrel {

/// A kind of file that a dialog offers: what it is called, and its extensions without the dot; none: every file.
struct FileFilter {
    QString title;
    QStringList extensions;
};

/// A file to be written, and which of the kinds offered it is to be.
struct FileToSave {
    QString file;
    int filter = 0;
};

/// Whether a file chosen to be written is that of another open document; the user is then told.
using FileTaken = std::function<bool(const QString& file)>;

/// Where the user chooses files: dialogs in the application, queued names in tests.
class FileDialogs {
public:
    virtual ~FileDialogs() = default;

    /// Existing files, one at most unless several are allowed; none on cancel.
    virtual QStringList filesToOpen(QWidget* parent, const QString& title, const QList<FileFilter>& filters,
                                    bool several) = 0;
    /// A file to write, with the extension of its kind; replacing an existing one has been confirmed. Nothing on
    /// cancel.
    virtual std::optional<FileToSave> fileToSave(QWidget* parent, const QString& title, const QString& proposal,
                                                 const QList<FileFilter>& filters) = 0;
};

/// The desktop's dialogs, as sheets on the parent; they start in the folder used last.
class SystemFileDialogs : public FileDialogs {
public:
    QStringList filesToOpen(QWidget* parent, const QString& title, const QList<FileFilter>& filters,
                            bool several) override;
    std::optional<FileToSave> fileToSave(QWidget* parent, const QString& title, const QString& proposal,
                                         const QList<FileFilter>& filters) override;

private:
    QString folder_;
};

}  // namespace tavrel
