#include "desktop/ui/icons.h"

#include "desktop/iconfiles.h"

#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include <utility>

namespace tavrel {

namespace {

/// An icon whose drawing is read when it is seen for the first time: most stand in menus that nobody opens.
class NamedIcon : public QIconEngine {
public:
    explicit NamedIcon(QString path) : path_(std::move(path)) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
        icon().paint(painter, place, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        // The size is in the screen's own dots already.
        return icon().pixmap(size, 1, mode, state);
    }
    QIconEngine* clone() const override { return new NamedIcon(*this); }
    bool isNull() override { return false; }

private:
    const QIcon& icon() {
        if (icon_.isNull()) {
            icon_ = QIcon(path_);
        }
        return icon_;
    }

    QString path_;
    QIcon icon_;
};

}  // namespace

QIcon iconNamed(const QString& name) {
    static QHash<QString, QIcon> icons;
    const auto known = icons.constFind(name);
    if (known != icons.constEnd()) {
        return *known;
    }
    const QString path = iconFile(name);
    return *icons.insert(name, QFile::exists(path) ? QIcon(new NamedIcon(path)) : QIcon());
}

}  // namespace tavrel
