#include "capacity/forms/CapacityWindow.h"

#include "command/entered_equilibria.h"
#include "runtime/format.h"
#include "runtime/run_time_error.h"
#include "ui_CapacityWindow.h"
#include "widgets/environment_stop.h"
#include "widgets/form_tools.h"
#include "windows/save_question.h"

#include <QShowEvent>

#include <cmath>

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

QString times(double factor) {
    return std::isfinite(factor) ? general(std::round(100 * factor) / 100)
                                 : QStringLiteral("dowolnie wiele");
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
        connectGuarded(field, &QLineEdit::textEdited, this, [this] { showChart(); });
    }
    soon_.setSingleShot(true);
    connectGuarded(&soon_, &QTimer::timeout, this, [this] { renew(); });
    connectGuarded(ui_->cmbPlaszczyzna, &QComboBox::currentIndexChanged, this,
                   [this] { showPlane(); });
    connectGuarded(ui_->cmbPrzypadek, &QComboBox::currentIndexChanged, this, [this] {
        takeCase();
        showChart();
    });
    connectGuarded(ui_->cmdZapisz, &QPushButton::clicked, this, [this] { save(); });
    connect(ui_->cmdZamknij, &QPushButton::clicked, this, &CapacityWindow::close);
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

void CapacityWindow::setPoints(std::span<const ChartPoint> points) {
    others_.assign(points.begin(), points.end());
    renewSoon();
}

void CapacityWindow::renew() {
    const InputFields fields = entered_.fields();
    strength_ = enteredStrength(entered_.stan, fields);
    readCases(fields);
    showPlane();
}

void CapacityWindow::readCases(const InputFields& fields) {
    cases_.clear();
    for (int c = 1; c <= std::clamp<int>(entered_.stan.obciazenia.Liczba_przyp, 0, MaxCases); ++c) {
        const std::optional<equilibrium::Load> load = enteredLoad(fields, c);
        const std::optional<Shear> shear = enteredShear(fields, c);
        if (load && shear)
            cases_.push_back({*load, *shear, c});
    }
    const QSignalBlocker quiet(ui_->cmbPrzypadek);
    const QString chosen = ui_->cmbPrzypadek->currentText();
    ui_->cmbPrzypadek->clear();
    for (const Case& one : cases_)
        ui_->cmbPrzypadek->addItem(QStringLiteral("Przypadek %1").arg(one.number));
    ui_->cmbPrzypadek->setCurrentIndex(
        std::max(ui_->cmbPrzypadek->findText(chosen), cases_.empty() ? -1 : 0));
    makeRoomForItems(ui_->cmbPrzypadek);
    takeCase();
}

void CapacityWindow::takeCase() {
    const int chosen = ui_->cmbPrzypadek->currentIndex();
    if (chosen < 0)
        return;
    const Case& one = cases_.at(static_cast<std::size_t>(chosen));
    ui_->txtN->setText(general(one.load.N));
    ui_->txtV->setText(general(std::hypot(one.shear.Vx, one.shear.Vy)));
}

// The planes of N have no one N.
void CapacityWindow::showPlane() {
    const bool atOneN = ui_->cmbPlaszczyzna->currentIndex() == 0;
    ui_->txtN->setEnabled(atOneN);
    ui_->lblN->setEnabled(atOneN);
    showChart();
}

std::vector<ChartPoint> CapacityWindow::pointsOf(const Strength& strength) const {
    if (!others_.empty())
        return others_;
    std::vector<ChartPoint> points;
    for (const Case& one : cases_) {
        const std::optional<Utilisation> used = strength.used(one.load, one.shear);
        points.push_back({one.load, QStringLiteral("Przypadek %1").arg(one.number),
                          used ? used->worst() : HUGE_VAL});
    }
    return points;
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
    Chart chart = chartOf(*strength_, plane, *N, {*V, 0}, pointsOf(*strength_));
    showReserve(*strength_, chart);
    ui_->wykres->setChart(std::move(chart));
}

/// How far the load nearest to the line may grow.
void CapacityWindow::showReserve(const Strength& strength, const Chart& chart) {
    const int nearest = nearestToLine(chart);
    if (nearest < 0)
        return;
    const ChartPoint& point = chart.points[static_cast<std::size_t>(nearest)];
    QString words = QStringLiteral("Najbliżej granicy: %1, wytężenie %2.")
                        .arg(point.name, usedWords(point.used));
    if (others_.empty() && std::isfinite(point.used)) {
        const Case& one = cases_.at(static_cast<std::size_t>(nearest));
        const double all = loadFactor(strength, one.load, one.shear);
        words +=
            all >= 1
                ? QStringLiteral(" Wszystkie jego siły mogą razem wzrosnąć %1 raza.")
                      .arg(times(all))
                : QStringLiteral(" Przeniesione będą, pomnożone razem przez %1.").arg(times(all));
    }
    ui_->lblZapas->setText(words);
}

void CapacityWindow::save() {
    const std::optional<QString> name =
        askWhereToSave({QStringLiteral("Zapis wykresu nośności"), QStringLiteral("nosnosc.png"),
                        QStringLiteral(".png"), pages::pictureFilter},
                       {.parent = this, .run = {}});
    if (name)
        pages::savePicture(pictureOf(ui_->wykres->chart()), *name);
}

} // namespace ferna
