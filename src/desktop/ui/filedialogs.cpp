#include "desktop/ui/filedialogs.h"

#include <QFileDialog>
#include <QFileInfo>

namespace tavrel {

namespace {

QStringList nameFilters(const QList<FileFilter>& filters) {
    QStringList names;
    for (const FileFilter& filter : filters) {
        QStringList patterns;
        for (const QString& extension : filter.extensions) {
            patterns.append(QStringLiteral("*.") + extension);
        }
        // The dialog takes the pattern from the last parentheses, so a title may hold some of its own.
        names.append(filter.title + QStringLiteral(" (") +
                     (patterns.isEmpty() ? QStringLiteral("*") : patterns.join(u' ')) + QStringLiteral(")"));
    }
    return names;
}

}  // namespace

QStringList SystemFileDialogs::filesToOpen(QWidget* parent, const QString& title, const QList<FileFilter>& filters,
                                           bool several) {
    QFileDialog dialog(parent, title, folder_);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setFileMode(several ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    dialog.setNameFilters(nameFilters(filters));
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    folder_ = dialog.directory().absolutePath();
    return dialog.selectedFiles();
}

std::optional<FileToSave> SystemFileDialogs::fileToSave(QWidget* parent, const QString& title, const QString& proposal,
                                                        const QList<FileFilter>& filters) {
    const QFileInfo proposed(proposal);
    const bool hasFolder = proposed.isAbsolute();
    QFileDialog dialog(parent, title, hasFolder ? proposed.absolutePath() : folder_);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    const QStringList names = nameFilters(filters);
    dialog.setNameFilters(names);
    const auto chosenFilter = [&] { return qMax(0, static_cast<int>(names.indexOf(dialog.selectedNameFilter()))); };
    const auto takeSuffix = [&] { dialog.setDefaultSuffix(filters.value(chosenFilter()).extensions.value(0)); };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, takeSuffix);
    takeSuffix();
    dialog.selectFile(proposed.fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    folder_ = dialog.directory().absolutePath();
    return FileToSave{dialog.selectedFiles().constFirst(), chosenFilter()};
}

}  // namespace tavrel
