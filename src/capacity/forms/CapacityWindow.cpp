#include "capacity/forms/CapacityWindow.h"

#include "command/entered_equilibria.h"
#include "runtime/format.h"
#include "runtime/run_time_error.h"
#include "ui_CapacityWindow.h"
#include "widgets/environment_stop.h"
#include "widgets/form_tools.h"
#include "widgets/small_screen.h"
#include "windows/save_question.h"

#include <QShowEvent>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace ferna {

namespace {

constexpr int soon = 120; // ms, shorter than a pause between two keys

std::optional<double> numberIn(const QLineEdit* field) {
    try {
        const double value = CDbl(field->text());
        return std::fabs(value) <= 1e9 ? std::optional(value) : std::nullopt;
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

/// The cases of the load table whose loads are numbers.
std::vector<NamedLoad> casesOf(const Stan& stan, const InputFields& fields) {
    std::vector<NamedLoad> cases;
    for (int c = 1; c <= std::clamp<int>(stan.obciazenia.Liczba_przyp, 0, MaxCases); ++c) {
        const std::optional<equilibrium::Load> load = enteredLoad(fields, c);
        const std::optional<Shear> shear = enteredShear(fields, c);
        if (load && shear)
            cases.push_back({QStringLiteral("Przypadek %1").arg(c), *load, *shear});
    }
    return cases;
}

/// A name as a list shows it.
QString listed(const QString& name) {
    constexpr qsizetype most = 40;
    return name.size() > most ? name.left(most - 1) + u'…' : name;
}

/// The places of the points that can grow least, in that order.
std::vector<std::size_t> nearestOf(const std::vector<ChartPoint>& points, std::size_t most) {
    std::vector<std::size_t> order(points.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    const auto end = order.begin() + static_cast<std::ptrdiff_t>(std::min(most, order.size()));
    std::partial_sort(order.begin(), end, order.end(), [&](std::size_t a, std::size_t b) {
        return std::pair(points[a].factor, a) < std::pair(points[b].factor, b);
    });
    order.erase(end, order.end());
    return order;
}

} // namespace

CapacityWindow::CapacityWindow(Entered entered, QWidget* parent)
    : QDialog(parent, Qt::Window), entered_(std::move(entered)),
      ui_(std::make_unique<Ui::CapacityWindow>()) {
    ui_->setupUi(this);
    ui_->cmbPlaszczyzna->addItems({QStringLiteral("M1-M2 przy stałej sile N"),
                                   QStringLiteral("N-M1"), QStringLiteral("N-M2")});
    for (QLineEdit* field : {ui_->txtN, ui_->txtV}) {
        allowOnlyNumbers(field);
        connectGuarded(field, &QLineEdit::textEdited, this, [this] { forcesTyped(); });
    }
    soon_.setSingleShot(true);
    connectGuarded(&soon_, &QTimer::timeout, this, [this] { renew(); });
    connectGuarded(ui_->cmbPlaszczyzna, &QComboBox::currentIndexChanged, this,
                   [this] { showPlane(); });
    connectGuarded(ui_->cmbPunkty, &QComboBox::currentIndexChanged, this, [this] {
        areTyped_ = false;
        renew();
    });
    connectGuarded(ui_->cmbPrzypadek, &QComboBox::currentIndexChanged, this, [this] {
        areTyped_ = false;
        takeForces();
        showChart();
    });
    connectGuarded(ui_->cmdZapisz, &QPushButton::clicked, this, [this] { save(); });
    connect(ui_->cmdZamknij, &QPushButton::clicked, this, &CapacityWindow::close);
    fitToScreen(this, QSize(940, 740));
}

CapacityWindow::~CapacityWindow() = default;

void CapacityWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    renew();
    ui_->cmbPlaszczyzna->setFocus();
}

void CapacityWindow::renewSoon() {
    if (isVisible())
        soon_.start(soon);
}

void CapacityWindow::showOthers() {
    readLoads();
    ui_->cmbPunkty->setCurrentIndex(ui_->cmbPunkty->count() - 1);
}

bool CapacityWindow::showsOthers() const {
    return ui_->cmbPunkty->currentIndex() > 0;
}

void CapacityWindow::renew() {
    readLoads();
    showPlane();
}

/// The loads of what is chosen, as they stand now.
void CapacityWindow::readLoads() {
    const InputFields fields = entered_.fields();
    strength_ = enteredStrength(entered_.stan, fields);
    OtherLoads others = entered_.others ? entered_.others() : OtherLoads();
    {
        const QSignalBlocker quiet(ui_->cmbPunkty);
        const bool chosen = showsOthers() && !others.loads.empty();
        ui_->cmbPunkty->clear();
        ui_->cmbPunkty->addItem(QStringLiteral("przypadki obciążenia"));
        if (!others.loads.empty())
            ui_->cmbPunkty->addItem(QStringLiteral("kombinacje: %1 (%2)")
                                        .arg(listed(others.source))
                                        .arg(others.loads.size()));
        ui_->cmbPunkty->setCurrentIndex(chosen ? 1 : 0);
        makeRoomForItems(ui_->cmbPunkty);
    }
    for (QWidget* part :
         {static_cast<QWidget*>(ui_->lblPunkty), static_cast<QWidget*>(ui_->cmbPunkty)})
        part->setVisible(!others.loads.empty());
    loads_ = showsOthers() ? std::move(others.loads) : casesOf(entered_.stan, fields);
    points_.clear();
    if (strength_)
        for (const NamedLoad& one : loads_)
            points_.push_back(pointOf(*strength_, one));
    listLoads();
}

/// The loads whose N and V the line can be drawn at; of many those that are nearest to it.
void CapacityWindow::listLoads() {
    constexpr std::size_t most = 50;
    const QSignalBlocker quiet(ui_->cmbPrzypadek);
    const QString chosen = ui_->cmbPrzypadek->currentText();
    ui_->cmbPrzypadek->clear();
    ui_->lblPrzypadek->setText(showsOthers() ? QStringLiteral("Siły z kombinac&ji:")
                                             : QStringLiteral("Siły z p&rzypadku:"));
    const auto list = [this](std::size_t place) {
        ui_->cmbPrzypadek->addItem(listed(loads_[place].name), static_cast<qulonglong>(place));
    };
    if (showsOthers() && !points_.empty())
        for (const std::size_t place : nearestOf(points_, most))
            list(place);
    else
        for (std::size_t place = 0; place < loads_.size(); ++place)
            list(place);
    const int first = ui_->cmbPrzypadek->count() > 0 ? 0 : -1;
    ui_->cmbPrzypadek->setCurrentIndex(
        areTyped_ ? -1 : std::max(ui_->cmbPrzypadek->findText(chosen), first));
    makeRoomForItems(ui_->cmbPrzypadek);
    takeForces();
}

void CapacityWindow::takeForces() {
    if (ui_->cmbPrzypadek->currentIndex() < 0)
        return;
    const NamedLoad& one = loads_.at(ui_->cmbPrzypadek->currentData().toULongLong());
    ui_->txtN->setText(general(one.load.N));
    constexpr double thousandths = 1000; // of a kN are enough for a line
    ui_->txtV->setText(
        general(std::round(thousandths * std::hypot(one.shear.Vx, one.shear.Vy)) / thousandths));
}

/// What is typed stays, whatever becomes of the loads.
void CapacityWindow::forcesTyped() {
    areTyped_ = true;
    const QSignalBlocker quiet(ui_->cmbPrzypadek);
    ui_->cmbPrzypadek->setCurrentIndex(-1);
    showChart();
}

// The planes of N have no one N.
void CapacityWindow::showPlane() {
    const bool atOneN = ui_->cmbPlaszczyzna->currentIndex() == 0;
    ui_->txtN->setEnabled(atOneN);
    ui_->lblN->setEnabled(atOneN);
    showChart();
}

void CapacityWindow::showChart() {
    const std::optional<double> N = numberIn(ui_->txtN);
    const std::optional<double> V = numberIn(ui_->txtV);
    ui_->cmdZapisz->setEnabled(strength_ && N && V);
    ui_->lblZapas->clear();
    if (!strength_) {
        ui_->wykres->setNothing(QStringLiteral(
            "Do wykresu potrzebne są: wymiary płyty, stosunek n, kotwy o średnicach z szeregu i "
            "stal, która ma dla nich wytrzymałość."));
        return;
    }
    if (!N || !V) {
        ui_->wykres->setNothing(QStringLiteral("Siły N i V linii muszą być liczbami."));
        return;
    }
    const auto plane = static_cast<ChartPlane>(ui_->cmbPlaszczyzna->currentIndex());
    Chart chart = chartOf(*strength_, plane, *N, {*V, 0}, points_);
    showReserve(chart);
    ui_->wykres->setChart(std::move(chart));
}

/// How far the load nearest to the line may grow, and how many are beyond it.
void CapacityWindow::showReserve(const Chart& chart) {
    const int nearest = nearestToLine(chart);
    if (nearest < 0)
        return;
    const ChartPoint& point = chart.points[static_cast<std::size_t>(nearest)];
    QString words = QStringLiteral("Najbliżej granicy: %1, wytężenie %2.")
                        .arg(point.name, usedWords(point.used));
    if (std::isfinite(point.used))
        words += (point.factor >= 1
                      ? QStringLiteral(" Wszystkie %2 siły mogą razem wzrosnąć %1 raza.")
                      : QStringLiteral(" Wszystkie %2 siły będą przeniesione pomnożone przez %1."))
                     .arg(factorWords(point.factor),
                          showsOthers() ? QStringLiteral("jej") : QStringLiteral("jego"));
    if (showsOthers()) {
        const auto beyond = std::count_if(chart.points.begin(), chart.points.end(),
                                          [](const ChartPoint& one) { return one.factor < 1; });
        words += QStringLiteral(" Kombinacji: %1, niespełnionych: %2.")
                     .arg(chart.points.size())
                     .arg(beyond);
    }
    ui_->lblZapas->setText(words);
}

void CapacityWindow::save() {
    const auto named = [](const QString& name) {
        return pages::isPictureFile(name) ? name : name + QStringLiteral(".png");
    };
    const std::optional<QString> name = askWhereToSave(
        {QStringLiteral("Zapis wykresu nośności"), QStringLiteral("nosnosc.png"),
         QStringLiteral(".png"), pages::pictureFilter},
        {.parent = this,
         .files = [named](const QString& given) { return QStringList{named(given)}; },
         .run = {}});
    if (name)
        pages::savePicture(pictureOf(ui_->wykres->chart()), named(*name));
}

} // namespace ferna
