#include "app/preferenceswindow.h"
#include "app/testapplication.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QMenuBar>
#include <QScrollBar>

#include <algorithm>

namespace tavrel {

namespace {

/// The windows of the whole program, each type of document with a record.
struct EveryWindow : WholeProgram {
    ~EveryWindow() override {
        for (DocumentWindow* window : documents.windows()) {
            window->document().undoStack().setClean();
        }
    }

    /// Opens everything that a menu of some document opens without a question, and gives all windows that are there.
    QList<QWidget*> openAll() {
        for (const char* ending : {"carnet", "materiel", "epaves", "compresseur", "rebreather", "consommables",
                                   "budget", "entreprises", "structures", "documents"}) {
            DocumentWindow* window = openSample(QString::fromLatin1(ending));
            if (!window) {
                ADD_FAILURE() << ending;
                continue;
            }
            auto& book = static_cast<BookBase&>(window->document());
            book.selectRows({0});
            book.editWindow();
            for (QAction* action : window->ownMenuActions() + window->viewActions()) {
                if (!action) {
                    continue;  // between groups
                }
                // What only shows something; commands that ask stay out.
                const QString name = action->objectName();
                if (action->isEnabled() && !action->isCheckable() && !action->text().endsWith(u'…') &&
                    (name.contains(u"synthe", Qt::CaseInsensitive) || name.contains(u"profil", Qt::CaseInsensitive) ||
                     name.contains(u"stat", Qt::CaseInsensitive) || name.contains(u"graph", Qt::CaseInsensitive))) {
                    action->trigger();
                }
            }
        }
        documents.showPreferencePanel();
        for (std::size_t id = 0; id < calculatorCount; ++id) {
            delegate.showCalculator(static_cast<CalculatorId>(id));
        }
        for (const auto& editor : pickListEditors) {
            delegate.showEditor(editor);
        }
        return QApplication::topLevelWidgets();
    }
};

/// A part of another widget, which speaks for it.
bool isPart(const QWidget& widget) {
    const QWidget* parent = widget.parentWidget();
    return qobject_cast<const QScrollBar*>(&widget) || widget.objectName().startsWith(u"qt_") ||
           widget.inherits("QHeaderView") || widget.inherits("QComboBoxListView") || widget.inherits("QSizeGrip") ||
           widget.inherits("QAbstractScrollAreaScrollBarContainer") || widget.inherits("QTableCornerButton") ||
           (parent && (parent->inherits("QAbstractSpinBox") || parent->inherits("QComboBox") ||
                       parent->inherits("QComboBoxPrivateContainer") || parent->inherits("QTabBar") ||
                       parent->inherits("QLineEdit") || parent->inherits("QMenuBar")));
}

bool mustHaveName(const QWidget& widget) {
    using enum QAccessible::Role;
    constexpr QAccessible::Role named[] = {Button,      EditableText, ComboBox, CheckBox, RadioButton, Slider, SpinBox,
                                           ProgressBar, Table,        Tree,     List,     Graphic,     Chart,  Canvas};
    const auto role = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget))->role();
    return std::find(std::begin(named), std::end(named), role) != std::end(named) ||
           (widget.focusPolicy() != Qt::NoFocus && !widget.isWindow() && !widget.inherits("QScrollArea") &&
            !widget.inherits("QTabBar") && !widget.inherits("QTabWidget"));
}

QStringList nameless(const QWidget& window) {
    QStringList found;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->window() != &window || isPart(*widget) || !mustHaveName(*widget)) {
            continue;
        }
        const auto* spoken = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        if (spoken->text(QAccessible::Name).trimmed().isEmpty()) {
            found << QStringLiteral("%1 > %2 (%3)")
                         .arg(window.windowTitle(), widget->objectName(),
                              QString::fromLatin1(widget->metaObject()->className()));
        }
    }
    return found;
}

TEST_F(EveryWindow, hasNothingNameless) {
    for (const char* language : {"en", "fr"}) {
        setTextLanguage(QString::fromLatin1(language));
        QStringList found;
        int windows = 0;
        for (const QWidget* window : openAll()) {
            if (window->isVisible() && !window->inherits("QMenu")) {
                ++windows;
                EXPECT_FALSE(window->windowTitle().isEmpty()) << window->objectName().toStdString();
                found += nameless(*window);
            }
        }
        EXPECT_GE(windows, 10 + 10 + 1 + 13 + 15);
        EXPECT_EQ(found.join(u'\n').toStdString(), "");
        if (qstrcmp(language, "en") == 0) {
            documents.closeAllDocuments();
        }
    }
}

TEST_F(EveryWindow, followsTheFontSizeOfTheSystem) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 1.5);
    QApplication::setFont(large);
    QStringList small;
    for (const QWidget* window : openAll()) {
        for (const QWidget* widget : window->findChildren<QWidget*>()) {
            if (widget->window() == window && QFontInfo(widget->font()).pointSizeF() < large.pointSizeF() * 0.85) {
                small << window->windowTitle() + u' ' + widget->objectName();
            }
        }
    }
    QApplication::setFont(usual);
    EXPECT_EQ(small.join(u'\n').toStdString(), "");
}

/// Every command of the menus, with the titles of the menus that lead to it.
void collect(const QMenu& menu, const QString& path, QHash<QString, QString>& titles) {
    for (QAction* action : menu.actions()) {
        if (action->menu()) {
            collect(*action->menu(), path + u'/' + action->text(), titles);
        } else if (!action->isSeparator()) {
            titles[action->objectName()] = action->text().remove(u'&');
        }
    }
}

TEST_F(EveryWindow, marksTheCommandsThatOpenADialog) {
    // Written by hand: what asks for more before it does anything, and what does not.
    const char* asking =
        "openDocument saveDocumentAs exportDocument runPageLayout imprimer showPreferencePanel convertUnits customise "
        "sendRenumDivesNotification importUDCF importUDDF revertDocumentToSaved synthese";
    const char* doing = "saveDocument closeDocument terminate undo redo performMiniaturize";
    for (const char* language : {"en", "fr"}) {
        setTextLanguage(QString::fromLatin1(language));
        QHash<QString, QString> titles;
        const DocumentWindow* window = documents.newDocument();
        for (QAction* menu : window->menuBar()->actions()) {
            collect(*menu->menu(), menu->text(), titles);
        }
        for (const char* names : {asking, doing}) {
            for (const QString& name : QString::fromLatin1(names).split(u' ')) {
                EXPECT_TRUE(titles.contains(name)) << name.toStdString() << " is in no menu";
                EXPECT_EQ(titles.value(name).endsWith(u'…'), names == asking) << titles.value(name).toStdString();
            }
        }
    }
}

}  // namespace

}  // namespace tavrel
