#include "calculators/ui/calculatorwidgets.h"

#include <QClipboard>
#include <QGraphicsOpacityEffect>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace tavrel {

namespace {

constexpr double resultFontScale = 1.35;

// Plainly fainter than a result that counts, and still read without effort.
constexpr double dimmedOpacity = 0.55;

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightnessF() < 0.5F;
}

}  // namespace

QGraphicsEffect* newDimming(QWidget* widget) {
    auto* effect = new QGraphicsOpacityEffect(widget);
    effect->setOpacity(dimmedOpacity);
    effect->setEnabled(false);
    return effect;
}

QLabel* newStaleNote(QWidget* parent) {
    auto* note = new QLabel(text(Title("Calculators", "Stale result")), parent);
    note->setObjectName(QStringLiteral("staleNote"));
    QSizePolicy policy = note->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    note->setSizePolicy(policy);
    note->hide();
    return note;
}

QColor readableRed(const QPalette& palette) {
    return isDark(palette) ? QColor(255, 112, 112) : QColor(200, 0, 0);
}

QColor readableBlue(const QPalette& palette) {
    return isDark(palette) ? QColor(130, 170, 255) : QColor(Qt::blue);
}

QLineEdit* newNumberField(const char* name, QWidget* parent, int digits) {
    auto* field = new QLineEdit(parent);
    field->setObjectName(QLatin1StringView(name));
    field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // One more digit's width for the frame.
    field->setFixedWidth(field->fontMetrics().horizontalAdvance(u'0') * (digits + 1));
    return field;
}

void addFieldRow(QGridLayout* grid, const QString& label, QWidget* field, const QString& unit,
                 Qt::Alignment alignment) {
    const int row = grid->rowCount();
    auto* caption = new QLabel(label, field->parentWidget());
    caption->setBuddy(field);
    auto* unitLabel = new QLabel(unit, field->parentWidget());
    grid->addWidget(caption, row, 0);
    grid->addWidget(field, row, 1, alignment);
    grid->addWidget(unitLabel, row, 2);
    grid->setColumnStretch(0, 1);
}

QLabel* newResultLabel(const char* name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1StringView(name));
    label->setAccessibleName(text(Title("Calculators", "Result")));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * resultFontScale);
    font.setBold(true);
    label->setFont(font);
    return label;
}

QLabel* newFormulaLabel(const QString& formula, QWidget* parent) {
    auto* label = new QLabel(formula, parent);
    label->setAccessibleName(text(Title("Calculators", "Formula")));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

void copyResult(const QString& result) {
    if (!result.trimmed().isEmpty()) {
        QGuiApplication::clipboard()->setText(result);
    }
}

QPushButton* newCopyButton(Title label, const std::function<QString()>& copied, QWidget* parent) {
    auto* button = new QPushButton(text(label), parent);
    button->setToolTip(text(Title("Calculators", "Copy hint")));
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button, [copied] { copyResult(copied()); });
    return button;
}

}  // namespace tavrel
