#include "support/main_form.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

class PlatePicture : public MainForm {
protected:
    QImage picture() const { return the("Picture3")->grab().toImage(); }

    int coloured(const QImage& image) const {
        int pixels = 0;
        for (int y = 2; y < image.height() - 2; ++y) // without the frame
            for (int x = 2; x < image.width() - 2; ++x)
                pixels += image.pixel(x, y) != 0xFFFFFFFF ? 1 : 0;
        return pixels;
    }
};

TEST_F(PlatePicture, IsDrawnAnewWithEveryChangeOfTheLayout) {
    show(Sruby);
    const QImage without = picture();
    EXPECT_GT(coloured(without), 500);
    add("cmdDodaj4", 80, 400, 400);
    const QImage with = picture();
    EXPECT_NE(with, without);
    answers.box(QStringLiteral("Ferna 2005 Pr - Usuwanie wszystkich śrub"),
                QStringLiteral("Czy napewno chcesz usunąć wszystkie śruby?"),
                QStringLiteral("Tak"));
    click("cmdUsunws");
    EXPECT_EQ(picture(), without);
}

TEST_F(PlatePicture, IsNotDrawnAnewByAChangeOfDiameter) {
    show(Sruby);
    add("cmdDodaj4", 20, 400, 400);
    const QImage before = picture();
    answers.dialog(QStringLiteral("Fernafi"), [](QWidget& modal) {
        chooseDiameter(modal, 80);
        press(modal, "cmdOK");
    });
    click("cmdZmienwfi");
    EXPECT_EQ(picture(), before);
    show(Dane_ogolne);
    show(Sruby);
    EXPECT_NE(picture(), before);
}

TEST_F(PlatePicture, StaysEmptyWhereASizeIsNoNumber) {
    type("Text3", QStringLiteral("12oo"));
    answers.box(QStringLiteral("Ferna 2005 Pr"),
                QStringLiteral("Podany ciąg znaków nie tworzy liczby"));
    show(Sruby);
    EXPECT_EQ(coloured(picture()), 0);
    show(Dane_ogolne);
    EXPECT_EQ(text("Text3"), QStringLiteral("12oo"));
    type("Text3", QStringLiteral("0"));
    answers.box(QStringLiteral("Ferna 2005 Pr"), QStringLiteral("11K3!!"));
    show(Sruby);
    EXPECT_EQ(coloured(picture()), 0);
}

TEST_F(PlatePicture, GrowsWithTheForm) {
    show(Sruby);
    form->resize(form->size() + QSize(300, 200)); // beyond what the captions of the commands need
    settle();
    const QSize before = the("Picture3")->size();
    form->resize(form->size() + QSize(300, 200));
    settle();
    EXPECT_GE(the("Picture3")->width(), before.width() + 200);
    EXPECT_GE(the("Picture3")->height(), before.height() + 200);
    EXPECT_GT(coloured(picture()), 500);
}

TEST_F(PlatePicture, OfTheReportIsThatOfTheTabAtPrintResolution) {
    show(Sruby);
    add("cmdDodaj4", 80, 400, 300);
    form->resize(900, 1100); // another proportion than that of the picture
    settle();
    const QImage view = the("Picture3")->grab().toImage();
    const QSize size = QSize(265, 176).scaled(view.size(), Qt::KeepAspectRatio);
    const QImage shown = view.copy(QRect(
        QPoint((view.width() - size.width()) / 2, (view.height() - size.height()) / 2), size));
    click("cmdOblicz");
    QImage saved(path(QStringLiteral("Ferrob.bmp")));
    EXPECT_GE(saved.width(), 70.1 / 25.4 * 300);
    saved = saved.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const auto dark = [](const QImage& image, int x, int y) {
        return image.valid(x, y) && qGray(image.pixel(x, y)) < 128;
    };
    const auto missing = [&](const QImage& from, const QImage& in) {
        int pixels = 0;
        int missed = 0;
        for (int y = 2; y < size.height() - 2; ++y)
            for (int x = 2; x < size.width() - 2; ++x)
                if (dark(from, x, y)) {
                    ++pixels;
                    bool found = false;
                    for (int i = 0; i < 25 && !found; ++i)
                        found = dark(in, x + i % 5 - 2, y + i / 5 - 2);
                    missed += found ? 0 : 1;
                }
        EXPECT_GT(pixels, 1000);
        return 100.0 * missed / pixels;
    };
    EXPECT_LT(missing(shown, saved), 2);
    EXPECT_LT(missing(saved, shown), 2);
}

TEST_F(PlatePicture, TheSketchOfTheDirectionsIsShown) {
    EXPECT_GT(coloured(the("Picture1")->grab().toImage()), 500);
}

} // namespace
