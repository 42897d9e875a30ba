#pragma once

#include "desktop/ui/customtoolbar.h"
#include "forms/ui/formpages.h"
#include "logbook/carnet.h"

#include <QMainWindow>
#include <QString>

#include <functional>

class QLabel;
class QPropertyAnimation;
class QPushButton;
class QStackedWidget;
class QTabBar;

namespace tavrel {

/// The dive edit window of a logbook: the six pages of the dive form, one at a time, each at its natural size. Opens
/// and closes as the logbook asks. Closing it, and going to another dive, stores the form into the selected dive.
class DiveEditWindow : public QMainWindow {
    Q_OBJECT

public:
    static constexpr int pageCount = 6;

    DiveEditWindow(Carnet& carnet, Desktop& desktop, QWidget* parent = nullptr);
    ~DiveEditWindow() override;

    /// What a toolbar item does that others provide (profile, imports). Items without one do not show.
    void setCommand(const QString& identifier, std::function<void()> command);

    void goView_1() { goView(1); }
    void goView_2() { goView(2); }
    void goView_3() { goView(3); }
    void goView_4() { goView(4); }
    void goView_5() { goView(5); }
    void goView_6() { goView(6); }
    /// Shows a page, from 1: the window takes the page's natural size, its top edge in place, and the form is
    /// refreshed.
    void goView(int page);
    int currentPage() const { return page_; }
    /// Shows the window over all others. It does so by itself whenever the logbook asks; whoever makes it only then
    /// calls it.
    void bringToFront();
    /// Gives the area of the pages a size; the top edge stays in place. Moves smoothly where the user's desktop does.
    void resizeWindowToSize(const QSize& size);

    FormPages& pages() { return pages_; }
    CustomToolBar& toolBar() { return *toolBar_; }
    /// Ends an entry under way, before the form is taken or replaced from elsewhere.
    void finishEditing() { pages_.finishEditing(); }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildToolBar(Desktop& desktop);
    void buildContents();
    void addShortcuts();
    void showPage();
    void takeFocus(int control);
    void confirm();
    void step(int direction);
    void updateState();
    void updateTitle();
    QSize naturalSize(int page) const;

    Carnet& carnet_;
    FormPages pages_;
    CustomToolBar* toolBar_ = nullptr;
    QTabBar* pageBar_ = nullptr;
    QStackedWidget* stack_ = nullptr;
    QPushButton* previous_ = nullptr;
    QPushButton* next_ = nullptr;
    QLabel* status_ = nullptr;
    QPropertyAnimation* resizing_ = nullptr;
    int page_ = 1;
    bool focusesPage_ = false;
    bool focusesNumber_ = true;  ///< as soon as it is in sight
    bool closing_ = false;
};

}  // namespace tavrel
