#include "input/anchor_layout.h"

#include "runtime/format.h"
#include "runtime/line_of_text.h"

#include <cstdlib>

namespace ferna {

namespace {

int anchorsAdded(Adding way) {
    switch (way) {
    case Adding::One:
        return 1;
    case Adding::Four:
        return 4;
    default:
        return 2;
    }
}

void storeNewAnchors(Plyta_i_kotwy& plate, Adding way, const NewAnchor& anchor) {
    const int n = plate.Liczba_srub;
    const int x = anchor.Nowa_x;
    const int y = anchor.Nowa_y;
    const auto store = [&](int slot, int atX, int atY) {
        storeAnchorAt(plate, slot, atX, atY, anchor.Nowa_fi);
    };
    switch (way) {
    case Adding::One:
        store(n, x, y);
        break;
    case Adding::PairAboutX:
        store(n - 1, x, std::abs(y));
        store(n, x, -std::abs(y));
        break;
    case Adding::PairAboutY:
        store(n - 1, std::abs(x), y);
        store(n, -x, y);
        break;
    case Adding::Four:
        store(n - 3, std::abs(x), std::abs(y));
        store(n - 2, -std::abs(x), std::abs(y));
        store(n - 1, std::abs(x), -std::abs(y));
        store(n, -std::abs(x), -std::abs(y));
        break;
    }
}

} // namespace

QString newAnchorCaption(Adding way) {
    switch (way) {
    case Adding::One:
        return QStringLiteral("Podaj współrzędne śruby");
    case Adding::Four:
        return QStringLiteral("Podaj współrzędne jednej z 4 śrub");
    default:
        return QStringLiteral("Podaj współrzędne jednej z 2 śrub");
    }
}

void storeAnchorAt(Plyta_i_kotwy& plate, int slot, int x, int y, Integer fi) {
    plate.X_kotwy(slot) = CSng(x / 10.0);
    plate.X_kotwy_mm(slot) = CSng(x);
    plate.Y_kotwy(slot) = CSng(y / 10.0);
    plate.Y_kotwy_mm(slot) = CSng(y);
    plate.Fi_kotwy(slot) = fi;
}

void addAnchors(Stan& stan, Adding way, const std::function<NewAnchor()>& ask) {
    const Plyta_i_kotwy before = stan.plyta;
    stan.plyta.Liczba_srub = CInt(stan.plyta.Liczba_srub + anchorsAdded(way));
    try {
        storeNewAnchors(stan.plyta, way, ask());
    } catch (const RunTimeError& failure) {
        stan.plyta = before;
        if (failure.number() != error::Subscript)
            throw;
        throw RunTimeError(error::Subscript,
                           QStringLiteral("program przyjmuje najwyżej %1 śrub").arg(MaxAnchors));
    }
    fillAnchorLines(stan);
}

void fillAnchorLines(Stan& stan) {
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
        stan.raport.Wiersze_srub(i) = LineOfText()
                                          .general(i)
                                          .add(u".   M")
                                          .general(int{stan.plyta.Fi_kotwy(i)})
                                          .add(u"  x=")
                                          .general(stan.plyta.X_kotwy_mm(i))
                                          .add(u" mm  y=")
                                          .general(stan.plyta.Y_kotwy_mm(i))
                                          .add(u" mm");
}

QString Lista_srub(Stan& stan) {
    fillAnchorLines(stan);
    QString list;
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
        list += stan.raport.Wiersze_srub(i) + u'\n';
    return list;
}

bool listIsTrue(const Plyta_i_kotwy& plate) {
    for (int i = 1; i <= plate.Liczba_srub; ++i)
        if (plate.X_kotwy(i) != CSng(plate.X_kotwy_mm(i) / 10.0)
            || plate.Y_kotwy(i) != CSng(plate.Y_kotwy_mm(i) / 10.0))
            return false;
    return true;
}

bool removeOneAnchor(Stan& stan, Dialogs& dialogs) {
    const QString title = QStringLiteral("Ferna 2005 Pr - Usuwanie");
    Plyta_i_kotwy& plate = stan.plyta;
    const QString answer = dialogs.input(QStringLiteral("Podaj numer śruby do usunięcia"), title,
                                         general(plate.Liczba_srub));
    if (answer.isEmpty())
        return false;
    const Integer number = CInt(answer);
    if (number < 1 || number > plate.Liczba_srub) {
        dialogs.message(QStringLiteral("Nie ma takiej śruby"), title, MessageStyle::Plain);
        return false;
    }
    for (int i = number; i < plate.Liczba_srub; ++i) {
        plate.X_kotwy(i) = plate.X_kotwy(i + 1);
        plate.Y_kotwy(i) = plate.Y_kotwy(i + 1);
        plate.Fi_kotwy(i) = plate.Fi_kotwy(i + 1);
    }
    plate.Liczba_srub = CInt(plate.Liczba_srub - 1);
    return true;
}

bool removeAllAnchors(Stan& stan, Dialogs& dialogs) {
    if (!dialogs.confirm(QStringLiteral("Czy napewno chcesz usunąć wszystkie śruby?"),
                         QStringLiteral("Ferna 2005 Pr - Usuwanie wszystkich śrub")))
        return false;
    for (int i = 1; i <= MaxAnchors; ++i) {
        stan.plyta.X_kotwy(i) = 0;
        stan.plyta.Y_kotwy(i) = 0;
        stan.plyta.Fi_kotwy(i) = 0;
    }
    stan.plyta.Liczba_srub = 0;
    return true;
}

std::optional<Integer> askForAnchorToChange(const Stan& stan, Dialogs& dialogs) {
    const QString title = QStringLiteral("Ferna 2005 Pr - Zmiana średnicy");
    const QString answer = dialogs.input(QStringLiteral("Podaj numer śruby do zmiany średnicy"),
                                         title, general(stan.plyta.Liczba_srub));
    if (answer.isEmpty())
        return std::nullopt;
    const Integer number = CInt(answer);
    if (number < 0 || number > stan.plyta.Liczba_srub) {
        dialogs.message(QStringLiteral("Nie ma takiej śruby"), title, MessageStyle::Plain);
        return std::nullopt;
    }
    return number;
}

std::optional<Integer> allAnchorsToChange(const Stan& stan, Dialogs& dialogs) {
    if (stan.plyta.Liczba_srub > 0)
        return allAnchors;
    dialogs.message(QStringLiteral("Nie ma śrub do modyfikacji"),
                    QStringLiteral("Ferna 2005 Pr - Zmiana średnic"), MessageStyle::Plain);
    return std::nullopt;
}

QString diameterHeading(const Stan& stan, Integer Nr_zmienianej) {
    if (Nr_zmienianej == allAnchors)
        return QStringLiteral("Podaj nową średnicę śrub:");
    return QStringLiteral("Śruba nr ") + Format(Nr_zmienianej, u"##") + QStringLiteral("   M")
           + general(stan.plyta.Fi_kotwy(Nr_zmienianej));
}

void changeDiameter(Stan& stan, Integer Nr_zmienianej, Integer fi) {
    if (Nr_zmienianej >= 0) {
        stan.plyta.Fi_kotwy(Nr_zmienianej) = fi;
        return;
    }
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
        stan.plyta.Fi_kotwy(i) = fi;
}

} // namespace ferna
