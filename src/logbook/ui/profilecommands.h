#pragma once

#include <QList>
#include <QObject>

#include <memory>

class QWidget;

namespace tavrel {

class Carnet;
struct Desktop;
class LogbookWindow;
class ProfileEditorWindow;
class ProfileWindow;

/// The two windows of a logbook that show the profile of the dive in its form: the picture and the editor of its
/// series, each made when it is asked for first. They follow the form. Gives the logbook's toolbars their commands.
class ProfileCommands : public QObject {
    Q_OBJECT

public:
    ProfileCommands(Carnet& carnet, LogbookWindow& window, Desktop& desktop);
    ~ProfileCommands() override;

    void displayProfilWindow();
    void profilInfo();

    ProfileWindow& profileWindow();
    ProfileEditorWindow& editorWindow();
    /// Those that were made.
    QList<QWidget*> windows() const;

private:
    void scheduleRefresh();
    void refresh();

    Carnet& carnet_;
    Desktop& desktop_;
    std::unique_ptr<ProfileWindow> profileWindow_;
    std::unique_ptr<ProfileEditorWindow> editorWindow_;
    bool refreshScheduled_ = false;
};

}  // namespace tavrel
