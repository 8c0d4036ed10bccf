#include "equilibrium/random_problems.h"

namespace ferna::testing {

namespace {

double magnitude(Dice& dice, double least, double most) {
    return std::pow(10.0, dice.between(least, most));
}

double areaOf(Dice& dice) {
    constexpr double areas[] = {85, 157, 245, 353, 561, 817, 1120, 1472, 1757, 2030, 4342};
    return dice.of(areas);
}

void ordinary(BaseAndLoad& p, Dice& dice) {
    p.width = dice.whole(200, 1200);
    p.length = dice.oneIn(4) ? p.width : p.width + dice.whole(0, static_cast<int>(p.width));
    p.n = typed(dice.between(6, 9), 2);
    const double x = std::floor(p.length / 2) - dice.whole(30, 60);
    const double y = std::floor(p.width / 2) - dice.whole(30, 60);
    const double area = areaOf(dice);
    if (dice.oneIn(4)) {
        for (int i = dice.whole(0, 12); i > 0; --i)
            p.anchors.push_back(
                {std::round(dice.between(-x, x)), std::round(dice.between(-y, y)), area});
    } else {
        p.anchors = {{x, y, area}, {-x, y, area}, {x, -y, area}, {-x, -y, area}};
        if (dice.oneIn(2))
            p.anchors.insert(p.anchors.end(), {{x, 0, area}, {-x, 0, area}});
        if (dice.oneIn(2))
            p.anchors.insert(p.anchors.end(), {{0, y, area}, {0, -y, area}});
    }
    p.load.N = typed(magnitude(dice, 0, 3.5), 1) * (dice.oneIn(5) ? -1 : 1);
    const auto moment = [&](double side) {
        const double sign = dice.oneIn(2) ? -1 : 1;
        return dice.oneIn(6) ? 0 : typed(sign * p.load.N * side / 6000 * magnitude(dice, -1, 1), 2);
    };
    p.load.M1 = moment(p.length);
    p.load.M2 = moment(p.width);
}

equilibrium::Anchor strangeAnchor(const BaseAndLoad& p, int style, Dice& dice) {
    const double a = p.length / 2;
    const double b = p.width / 2;
    const double area = areaOf(dice);
    const auto quarter = [&dice](double half) { return dice.whole(-4, 4) * half / 4; };
    switch (style) {
    case 0:
        return {dice.between(-2 * a, 2 * a), dice.between(-2 * b, 2 * b), area};
    case 1: // on an edge
        return {a, quarter(b), area};
    case 2: // in a row
        return {quarter(a), b / 2, area};
    case 3: // beside the plate
        return {dice.between(-3 * a, -a), dice.between(-3 * b, 3 * b), area};
    case 4: // few places
        return {quarter(a), quarter(b), area};
    default:
        return {dice.between(-a, a), dice.between(-b, b), area};
    }
}

void strange(BaseAndLoad& p, Dice& dice) {
    p.length = std::ceil(magnitude(dice, 1.5, 4));
    p.width = std::ceil(magnitude(dice, 1.5, 4));
    p.n = dice.oneIn(5) ? magnitude(dice, -2, 3) : dice.between(5, 15);
    const int style = dice.whole(0, 5);
    for (int i = dice.oneIn(3) ? dice.whole(0, 3) : dice.whole(0, 20); i > 0; --i)
        p.anchors.push_back(strangeAnchor(p, style, dice));
    const auto part = [&dice] {
        const double size = dice.oneIn(4) ? magnitude(dice, -12, 0) : 1;
        return size * (dice.oneIn(4) ? dice.whole(-1, 1) : dice.between(-1, 1));
    };
    double parts[] = {part(), part(), part()};
    if (dice.oneIn(6)) { // just inside an edge
        parts[0] = 1;
        parts[1] = 1 - magnitude(dice, -9, -1);
    }
    const double size = magnitude(dice, -6, 6);
    p.load = {size * parts[0], size * parts[1] * p.length / 2000, size * parts[2] * p.width / 2000};
}

} // namespace

BaseAndLoad randomProblem(std::uint64_t number) {
    Dice dice(number);
    BaseAndLoad problem;
    if (number % 4 == 0)
        strange(problem, dice);
    else
        ordinary(problem, dice);
    return problem;
}

} // namespace ferna::testing
