#include "desktop/ui/readablecolour.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>

#include <cmath>

namespace tavrel {

namespace {

double luminance(const QColor& color) {
    const auto linear = [](float channel) {
        const auto value = static_cast<double>(channel);
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

class PlaceholderColours : public QObject {
public:
    explicit PlaceholderColours(QObject* parent) : QObject(parent) { adopt(); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ApplicationPaletteChange) {
            adopt();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static void adopt() {
        QPalette palette = QApplication::palette();
        QColor wanted = palette.color(QPalette::Text);
        wanted.setAlphaF(0.5F);
        if (palette.color(QPalette::PlaceholderText) != wanted) {
            palette.setColor(QPalette::PlaceholderText, wanted);  // the other roles stay the desktop's
            QApplication::setPalette(palette);
        }
    }
};

}  // namespace

void keepPlaceholdersReadable() {
    qApp->installEventFilter(new PlaceholderColours(qApp));
}

QColor readableOn(const QColor& background, const QColor& color) {
    constexpr double middle = 0.18;  // the luminance on which black and white contrast alike
    const double ground = luminance(background);
    const bool isDark = ground <= middle;
    const auto canBeRead = [&](const QColor& shade) {
        const double own = luminance(shade) + 0.05;
        return isDark ? own >= 4.5 * (ground + 0.05) : own * 3 <= ground + 0.05;
    };
    QColor shade = color;
    for (int step = 1; step <= 20 && !canBeRead(shade); ++step) {
        const float share = static_cast<float>(step) / 20.0F;
        const auto shift = [&](float channel) { return channel + ((isDark ? 1.0F : 0.0F) - channel) * share; };
        shade = QColor::fromRgbF(shift(color.redF()), shift(color.greenF()), shift(color.blueF()));
    }
    return shade;
}

}  // namespace tavrel
