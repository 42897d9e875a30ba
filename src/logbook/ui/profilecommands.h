#pragma once

#include <QList>
#include <QObject>

#include <memory>

class QWidget;

namespace tavrel {

class BookEditWindow;
class Carnet;
struct Desktop;
class LogbookWindow;
class ProfileEditorWindow;
class ProfileView;
class ProfileWindow;

/// What shows the profile of the dive in a logbook's form: the view on the form itself, and two windows, the picture
/// and the editor of its series, each made when it is asked for first. They follow the form. Gives the logbook's
/// toolbars their commands.
class ProfileCommands : public QObject {
    Q_OBJECT

public:
    ProfileCommands(Carnet& carnet, LogbookWindow& window, Desktop& desktop);
    ~ProfileCommands() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

    void displayProfilWindow();
    void profilInfo();
    /// Asks about series typed into the editor, as ProfileEditorWindow::settle(); true where none are.
    bool settleEditor();
    void discardEditor();

    ProfileWindow& profileWindow();
    ProfileEditorWindow& editorWindow();
    /// On the form; null while its window was never opened.
    ProfileView* formView() const { return formView_; }
    /// Those that were made.
    QList<QWidget*> windows() const;

private:
    void placeFormView(BookEditWindow& window);
    void scheduleRefresh();
    void refresh();

    Carnet& carnet_;
    Desktop& desktop_;
    std::unique_ptr<ProfileWindow> profileWindow_;
    std::unique_ptr<ProfileEditorWindow> editorWindow_;
    ProfileView* formView_ = nullptr;
    bool refreshScheduled_ = false;
};

}  // namespace tavrel
