#include "app/preferencecontrol.h"

#include "app/colorwell.h"
#include "base/numbers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QRegularExpressionValidator>

#include <algorithm>

namespace tavrel {

namespace {

class SwitchControl : public PreferenceControl {
public:
    SwitchControl(const PreferenceKey& key, QWidget* parent) : box_(new QCheckBox(text(key.label), parent)) {}

    QWidget* widget() override { return box_; }
    QVariant value() const override { return box_->isChecked(); }
    void setValue(const QVariant& value) override { box_->setChecked(value.toBool()); }
    void onEdited(std::function<void()> edited) override { QObject::connect(box_, &QCheckBox::clicked, box_, edited); }

private:
    QCheckBox* box_;
};

class FieldControl : public PreferenceControl {
public:
    FieldControl(const PreferenceKey& key, QWidget* parent) : field_(new QLineEdit(parent)) {
        if (key.kind() == PreferenceKind::number) {
            const QRegularExpression number(QStringLiteral("-?[0-9]{0,9}([.,][0-9]{0,3})?"));
            field_->setValidator(new QRegularExpressionValidator(number, field_));
            field_->setAlignment(Qt::AlignRight);
            field_->setFixedWidth(field_->fontMetrics().horizontalAdvance(QStringLiteral("0000000000")));
        }
    }

    QWidget* widget() override { return field_; }
    QVariant value() const override { return field_->text(); }
    void setValue(const QVariant& value) override {
        if (field_->text() != value.toString()) {
            field_->setText(value.toString());
        }
    }
    void onEdited(std::function<void()> edited) override {
        QObject::connect(field_, &QLineEdit::editingFinished, field_, [field = field_, edited = std::move(edited)] {
            if (field->isModified()) {
                field->setModified(false);
                edited();
            }
        });
    }

private:
    QLineEdit* field_;
};

class OpacityControl : public PreferenceControl {
public:
    explicit OpacityControl(QWidget* parent) : box_(new QDoubleSpinBox(parent)) {
        box_->setRange(0, 1);
        box_->setSingleStep(0.05);
        box_->setDecimals(2);
        box_->setKeyboardTracking(false);
    }

    QWidget* widget() override { return box_; }
    QVariant value() const override { return box_->value(); }
    void setValue(const QVariant& value) override {
        const QSignalBlocker quiet(box_);
        box_->setValue(value.toDouble());
    }
    void onEdited(std::function<void()> edited) override {
        QObject::connect(box_, &QDoubleSpinBox::valueChanged, box_, edited);
    }

private:
    QDoubleSpinBox* box_;
};

class PopUpControl : public PreferenceControl {
public:
    PopUpControl(const PreferenceKey& key, QWidget* parent) : box_(new QComboBox(parent)) {
        for (const Title& choice : key.choices) {
            box_->addItem(text(choice));
        }
    }

    QWidget* widget() override { return box_; }
    QVariant value() const override { return box_->currentIndex(); }
    /// A tag beyond the choices means the last of them.
    void setValue(const QVariant& value) override {
        const int tag = value.toInt();
        box_->setCurrentIndex(tag < 0 || tag >= box_->count() ? box_->count() - 1 : tag);
    }
    void onEdited(std::function<void()> edited) override {
        QObject::connect(box_, &QComboBox::activated, box_, edited);
    }

private:
    QComboBox* box_;
};

class ColorControl : public PreferenceControl {
public:
    explicit ColorControl(QWidget* parent) : well_(new ColorWell(parent)) {}

    QWidget* widget() override { return well_; }
    QVariant value() const override { return well_->color(); }
    void setValue(const QVariant& value) override { well_->setColor(value.value<QColor>()); }
    void onEdited(std::function<void()> edited) override {
        QObject::connect(well_, &ColorWell::colorChosen, well_, edited);
    }

private:
    ColorWell* well_;
};

std::unique_ptr<PreferenceControl> newControl(const PreferenceKey& key, QWidget* parent) {
    switch (key.kind()) {
        case PreferenceKind::onOff:
            return std::make_unique<SwitchControl>(key, parent);
        case PreferenceKind::number:
        case PreferenceKind::text:
            return std::make_unique<FieldControl>(key, parent);
        case PreferenceKind::opacity:
            return std::make_unique<OpacityControl>(parent);
        case PreferenceKind::popUp:
            return std::make_unique<PopUpControl>(key, parent);
        case PreferenceKind::color:
            return std::make_unique<ColorControl>(parent);
    }
    Q_UNREACHABLE();
    return {};
}

}  // namespace

std::unique_ptr<PreferenceControl> makePreferenceControl(const PreferenceKey& key, QWidget* parent) {
    auto control = newControl(key, parent);
    control->widget()->setObjectName(QString::fromStdString(key.control));
    control->widget()->setAccessibleName(text(key.label));
    return control;
}

}  // namespace tavrel
