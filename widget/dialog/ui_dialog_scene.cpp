#include "widget/dialog/ui_dialog_scene.h"

#include "widget/elidinglabel.h"
#include "widget/picturelabel.h"

#include <QRect>

namespace
{
// Pixels, inside the dialog.
constexpr QRect wholeDialog(0, 0, 286, 190);
constexpr QRect titlePlace(8, 14, 270, 30);
constexpr QRect firstTile(4, 58, 68, 104);
constexpr int tileStep = 70;
// Pixels, inside a tile.
constexpr QRect imagePlace(10, 12, 48, 48);
constexpr QRect namePlace(0, 70, 68, 26);

template <class Label> Label *createLabel(QWidget *parent, const QString &name, const QRect &place)
{
    auto *label = new Label(parent);
    label->setObjectName(name);
    label->setGeometry(place);
    label->setAlignment(Qt::AlignCenter);
    return label;
}
} // namespace

void Ui_Dialog_scene::setupUi(QWidget *dialog)
{
    dialog->setObjectName(QStringLiteral("Dialog_scene"));
    lab_bg = createLabel<QLabel>(dialog, QStringLiteral("lab_bg"), wholeDialog);
    lab_bg->setStyleSheet(QStringLiteral("background-color: rgb(3, 20, 66);"));
    lab_Title = createLabel<ElidingLabel>(dialog, QStringLiteral("lab_Title"), titlePlace);
    for (size_t i = 0; i < tiles.size(); ++i) {
        const QString name = QStringLiteral("lab%1_").arg(i + 1);
        const QRect place = firstTile.translated(int(i) * tileStep, 0);
        tiles[i].bg = createLabel<QLabel>(dialog, name + "bg", place);
        tiles[i].img =
            createLabel<PictureLabel>(dialog, name + "img", imagePlace.translated(place.topLeft()));
        tiles[i].name =
            createLabel<ElidingLabel>(dialog, name + "name", namePlace.translated(place.topLeft()));
    }
}
