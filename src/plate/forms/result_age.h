#pragma once

#include <QObject>

class QComboBox;
class QLabel;

namespace ferna {

/// Watches the inputs of one check of the plate form: a result whose inputs were changed since is
/// shown as out of date, in grey and with a note under it, until they are as they were or the check
/// is computed anew.
class ResultAge : public QObject {
    Q_OBJECT

public:
    /// `page` holds the inputs of the check, `line` is its result, `grade` the list of steels.
    ResultAge(QWidget* page, QLabel* line, const QComboBox* grade);

    /// The result that the line shows is that of the inputs as they stand.
    void computed();
    /// There is no result.
    void withdrawn();
    /// Compares the inputs with those of the result.
    void look();

private:
    QStringList inputs() const;

    QWidget* page_;
    QLabel* line_;
    const QComboBox* grade_;
    QLabel* note_;
    QStringList ofTheResult_; ///< empty: no result
};

} // namespace ferna
