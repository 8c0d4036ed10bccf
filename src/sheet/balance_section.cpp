#include "sheet/descriptions.h"
#include "sheet/sections.h"

#include <algorithm>

namespace ferna::sheet {

namespace {

/// A corner of the compressed zone.
struct Vertex {
    const Quantity* x;
    const Quantity* y;
    const Quantity* s;
};
/// What a triangle of it carries.
struct Carried {
    const Quantity* area;
    const Quantity* force;
    const Quantity* M1;
    const Quantity* M2;
};

/// The numbers of one side of a case.
class Zone {
public:
    Zone(Maker& maker, const CaseSheet& one, Side side)
        : maker_(maker), c_(one.number), side_(side), s0_(of("s0")), sx_(of("sx")), sy_(of("sy")) {
        makeVertices();
        makeTriangles();
    }

    const std::vector<Vertex>& vertices() const { return vertices_; }
    const std::vector<Carried>& triangles() const { return triangles_; }

    const Quantity* of(const char* id) const {
        return maker_.at(c_, sided(QString::fromLatin1(id), side_));
    }
    QString name(const char* id, std::size_t number) const {
        return sided(QString::fromLatin1(id) + QString::number(number), side_);
    }
    QString symbol(const char* base, std::size_t number) const {
        return symbolOf(QString::fromLatin1(base), QString::number(number), side_);
    }

private:
    /// A corner of the plate by the signs of its coordinates, and the stress there.
    struct Corner {
        bool right;
        bool upper;
        double stress;
    };

    void makeVertices() {
        constexpr double half = 0.5;
        const double a = half * maker_.at(0, QStringLiteral("L"))->value;
        const double b = half * maker_.at(0, QStringLiteral("B"))->value;
        std::array<Corner, 4> corners{
            {{false, false, 0}, {true, false, 0}, {true, true, 0}, {false, true, 0}}};
        for (Corner& corner : corners)
            corner.stress = s0_->value + sx_->value * (corner.right ? a : -a)
                            + sy_->value * (corner.upper ? b : -b);
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const Corner& from = corners[i];
            const Corner& to = corners[(i + 1) % corners.size()];
            if (from.stress > 0)
                addCorner(from);
            if ((from.stress > 0) != (to.stress > 0))
                addCrossing(from, to);
        }
    }

    const Quantity* coordinate(char axis, bool high) {
        const QString id =
            sided(QString(QLatin1Char(axis)) + QString::number(vertices_.size() + 1), side_);
        return maker_.computed(
            c_, QStringLiteral("v") + id,
            symbolOf(QString(QLatin1Char(axis)), QString::number(vertices_.size() + 1), side_),
            high ? halfClause : minusHalfClause,
            {maker_.at(0, axis == 'x' ? QStringLiteral("L") : QStringLiteral("B"))}, places(1));
    }

    /// Where the line meets the edge on which the other coordinate is that of `on`.
    const Quantity* crossing(char axis, const Quantity* on) {
        const QString id =
            sided(QString(QLatin1Char(axis)) + QString::number(vertices_.size() + 1), side_);
        return maker_.computed(
            c_, QStringLiteral("v") + id,
            symbolOf(QString(QLatin1Char(axis)), QString::number(vertices_.size() + 1), side_),
            crossingClause, axis == 'x' ? Numbers{s0_, sx_, sy_, on} : Numbers{s0_, sy_, sx_, on},
            places(1));
    }

    void addCorner(const Corner& corner) {
        const Quantity* const x = coordinate('x', corner.right);
        addVertex(x, coordinate('y', corner.upper));
    }

    void addCrossing(const Corner& from, const Corner& to) {
        if (from.upper == to.upper) { // along x
            const Quantity* const y = coordinate('y', from.upper);
            addVertex(crossing('x', y), y);
        } else {
            const Quantity* const x = coordinate('x', from.right);
            addVertex(x, crossing('y', x));
        }
    }

    void addVertex(const Quantity* x, const Quantity* y) {
        const std::size_t k = vertices_.size() + 1;
        const Quantity* const s = maker_.computed(c_, name("vs", k), symbol("s", k), stressAtClause,
                                                  {s0_, sx_, sy_, x, y}, places(3));
        vertices_.push_back({x, y, s});
    }

    void makeTriangles() {
        for (std::size_t i = 1; i + 1 < vertices_.size(); ++i) {
            const Vertex& p = vertices_[0];
            const Vertex& q = vertices_[i];
            const Vertex& r = vertices_[i + 1];
            const Quantity* const area =
                maker_.computed(c_, name("tA", i), symbol("A", i), triangleAreaClause,
                                {p.x, p.y, q.x, q.y, r.x, r.y}, places(0));
            const Numbers stresses{area, p.s, q.s, r.s};
            const Quantity* const force = maker_.computed(c_, name("tC", i), symbol("C", i),
                                                          triangleForceClause, stresses, places(2));
            const auto moment = [&](const char* id, const char* base, const Quantity* x1,
                                    const Quantity* x2, const Quantity* x3) {
                Numbers inputs = stresses;
                inputs.insert(inputs.end(), {x1, x2, x3});
                return maker_.computed(c_, name(id, i), symbol(base, i), triangleMomentClause,
                                       inputs, places(2));
            };
            triangles_.push_back({area, force, moment("tM1_", "M_1,C", p.x, q.x, r.x),
                                  moment("tM2_", "M_2,C", p.y, q.y, r.y)});
        }
    }

    Maker& maker_;
    int c_;
    Side side_;
    const Quantity* s0_;
    const Quantity* sx_;
    const Quantity* sy_;
    std::vector<Vertex> vertices_;
    std::vector<Carried> triangles_;
};

Rich sideName(const Maker& maker, Side side) {
    return maker.text()(side == Side::Search ? QStringLiteral("side.search")
                                             : QStringLiteral("side.exact"));
}

/// Corners of the zone on both sides, beside one another.
Table verticesTable(const Maker& maker, const std::vector<std::pair<Side, Zone>>& zones) {
    Table table;
    table.caption = maker.text()(QStringLiteral("zone.caption"));
    Row over{headCell({})};
    Row symbols{headCell(QStringLiteral("<i>k</i>"))};
    std::size_t rows = 0;
    for (const auto& [side, zone] : zones) {
        over.push_back(headCell(sideName(maker, side), 3));
        for (const char* text : {"<i>x<sub>k</sub></i> [mm]", "<i>y<sub>k</sub></i> [mm]",
                                 "<i>s<sub>k</sub></i> [MPa]"})
            symbols.push_back(headCell(QString::fromLatin1(text)));
        rows = std::max(rows, zone.vertices().size());
    }
    table.head = {over, symbols};
    table.columns.assign(1 + 3 * zones.size(), Column{});
    table.columns.front().width = 0.4;
    for (std::size_t k = 0; k < rows; ++k) {
        Row row{cell(QString::number(k + 1))};
        for (const auto& [side, zone] : zones) {
            if (k < zone.vertices().size()) {
                const Vertex& vertex = zone.vertices()[k];
                row.insert(row.end(), {cell(vertex.x), cell(vertex.y), cell(vertex.s)});
            } else {
                row.insert(row.end(), 3, cell(Rich()));
            }
        }
        table.rows.push_back(std::move(row));
    }
    return table;
}

/// Triangles 1, k, k+1 of the zone, below one another.
Table trianglesTable(const Maker& maker, const std::vector<std::pair<Side, Zone>>& zones) {
    Table table;
    table.caption = maker.text()(QStringLiteral("triangles.caption"));
    table.columns.assign(5, Column{});
    table.columns.front() = {Column::Align::Left, 0.9};
    table.head = {{headCell(maker.text()(QStringLiteral("triangles.which"))),
                   headCell(QStringLiteral("<i>A</i> [mm²]")),
                   headCell(QStringLiteral("<i>C</i> [kN]")),
                   headCell(QStringLiteral("<i>C·x</i> [kNm]")),
                   headCell(QStringLiteral("<i>C·y</i> [kNm]"))}};
    for (const auto& [side, zone] : zones) {
        table.rows.push_back({headCell(sideName(maker, side), 5)});
        int k = 2;
        for (const Carried& one : zone.triangles()) {
            table.rows.push_back({cell(QStringLiteral("1-%1-%2").arg(k).arg(k + 1)), cell(one.area),
                                  cell(one.force), cell(one.M1), cell(one.M2)});
            ++k;
        }
    }
    return table;
}

/// The balance of one side: N, M1 and M2, each of concrete and anchors, against the load.
class BalanceRows {
public:
    BalanceRows(Maker& maker, const CaseSheet& one, Side side, const Zone& zone)
        : maker_(maker), c_(one.number), side_(side), zone_(zone) {}

    std::vector<Row> rows() {
        std::array<Row, 6> made;
        static constexpr std::array<const char*, 6> names{"balance.concrete", "balance.anchors",
                                                          "balance.sum",      "balance.load",
                                                          "balance.off",      "balance.share"};
        for (std::size_t i = 0; i < made.size(); ++i)
            made[i].push_back(cell(maker_.text()(QString::fromLatin1(names[i]))));
        for (const Axis& axis : axes)
            addColumn(axis, made);
        for (Cell& one : made[4])
            one.strong = true;
        for (Cell& one : made[5])
            one.strong = true;
        return {made.begin(), made.end()};
    }

private:
    struct Axis {
        const char* load;   // "N"
        const char* symbol; // "N"
        const char* place;  // of an anchor, empty for the force itself
        const char* size;   // of the plate along it
        const char* unit;
        const Quantity* Carried::*carried;
    };
    static constexpr std::array<Axis, 3> axes{{{"N", "N", "", "", "kN", &Carried::force},
                                               {"M1", "M_1", "x_", "L", "kNm", &Carried::M1},
                                               {"M2", "M_2", "y_", "B", "kNm", &Carried::M2}}};

    QString name(const char* what, const Axis& axis) const {
        return sided(QString::fromLatin1(what) + QLatin1String(axis.load), side_);
    }

    const Quantity* sum(const char* what, const char* index, const Axis& axis,
                        const Numbers& numbers) {
        const QString symbol = QString::fromLatin1(axis.symbol);
        return maker_.computed(
            c_, name(what, axis),
            symbol + (symbol.contains(u'_') ? u',' : u'_') + QString::fromLatin1(index),
            QString::fromLatin1(axis.unit), sumOf(references(numbers)), places(2));
    }

    Numbers anchorShares(const Axis& axis) {
        Numbers shares;
        for (int i = 1; i <= static_cast<int>(maker_.anchors.size()); ++i) {
            const QString number = QString::number(i);
            const Quantity* const F = maker_.at(c_, sided(QStringLiteral("F_") + number, side_));
            if (F->value == 0)
                continue;
            shares.push_back(
                *axis.place == '\0'
                    ? F
                    : maker_.computed(
                        c_, sided(QLatin1String(axis.load) + QStringLiteral("_") + number, side_),
                        QString::fromLatin1(axis.symbol) + u',' + number, anchorMomentClause,
                        {F, maker_.at(0, QLatin1String(axis.place) + number)}, places(2)));
        }
        return shares;
    }

    void addColumn(const Axis& axis, std::array<Row, 6>& rows) {
        Numbers carried;
        for (const Carried& triangle : zone_.triangles())
            carried.push_back(triangle.*axis.carried);
        const Quantity* const concrete = sum("C", "C", axis, carried);
        const Quantity* const anchors = sum("T", "T", axis, anchorShares(axis));
        const Quantity* const all = sum("R", "R", axis, {concrete, anchors});
        const Quantity* const load = maker_.at(c_, QString::fromLatin1(axis.load));
        const Quantity* const off =
            maker_.computed(c_, name("D", axis), QStringLiteral("Δ") + QLatin1String(axis.symbol),
                            QString::fromLatin1(axis.unit),
                            formulaOf(differenceClause, std::vector{all, load}), places(3));
        rows[0].push_back(cell(concrete));
        rows[1].push_back(cell(anchors));
        rows[2].push_back(cell(all));
        rows[3].push_back(cell(load));
        rows[4].push_back(cell(off));
        rows[5].push_back(share(axis, off));
    }

    /// As a share of the load, which may be nothing at all.
    Cell share(const Axis& axis, const Quantity* off) {
        const Quantity* size = maker_.find(c_, QStringLiteral("R_load"));
        if (size == nullptr)
            size = maker_.computed(
                c_, QStringLiteral("R_load"), QStringLiteral("R"), loadSizeClause,
                {maker_.at(c_, QStringLiteral("N")), maker_.at(c_, QStringLiteral("M1")),
                 maker_.at(c_, QStringLiteral("M2")), maker_.at(0, QStringLiteral("L")),
                 maker_.at(0, QStringLiteral("B"))},
                places(2));
        if (size->value == 0)
            return cell(QStringLiteral("–"));
        const bool force = *axis.place == '\0';
        return cell(maker_.computed(
            c_, name("d", axis), QStringLiteral("δ") + QLatin1String(axis.symbol),
            force ? forceErrorClause : momentErrorClause,
            force ? Numbers{off, size}
                  : Numbers{off, maker_.at(0, QString::fromLatin1(axis.size)), size},
            places(4)));
    }

    Maker& maker_;
    int c_;
    Side side_;
    const Zone& zone_;
};

Table balanceTable(Maker& maker, const CaseSheet& one,
                   const std::vector<std::pair<Side, Zone>>& zones) {
    Table table;
    table.caption = maker.text()(QStringLiteral("balance.caption"));
    table.columns.assign(4, Column{});
    table.columns.front() = {Column::Align::Left, 1.8};
    table.head = {{headCell({}), headCell(QStringLiteral("<i>N</i> [kN]")),
                   headCell(QStringLiteral("<i>M</i><sub>1</sub> [kNm]")),
                   headCell(QStringLiteral("<i>M</i><sub>2</sub> [kNm]"))}};
    for (const auto& [side, zone] : zones) {
        table.rows.push_back({headCell(sideName(maker, side), 4)});
        for (Row& row : BalanceRows(maker, one, side, zone).rows())
            table.rows.push_back(std::move(row));
    }
    return table;
}

} // namespace

Blocks balanceTables(Maker& maker, const CaseSheet& one) {
    std::vector<std::pair<Side, Zone>> zones;
    for (const Side side : {Side::Search, Side::Exact})
        if (hasPlane(one, side))
            zones.emplace_back(side, Zone(maker, one, side));
    if (zones.empty())
        return {};
    const bool pressed = std::any_of(zones.begin(), zones.end(), [](const auto& zone) {
        return !zone.second.triangles().empty();
    });
    Blocks blocks;
    if (pressed)
        blocks = {verticesTable(maker, zones), trianglesTable(maker, zones)};
    blocks.push_back(balanceTable(maker, one, zones));
    return blocks;
}

} // namespace ferna::sheet
