#include "task/history.h"

#include "task/step_name.h"

namespace ferna {

namespace {

/// The listed millimetres stand in no file, and are the engineer's all the same.
bool sameList(const Plyta_i_kotwy& a, const Plyta_i_kotwy& b) {
    for (int i = 1; i <= qMin(a.Liczba_srub, b.Liczba_srub); ++i)
        if (a.X_kotwy_mm(i) != b.X_kotwy_mm(i) || a.Y_kotwy_mm(i) != b.Y_kotwy_mm(i))
            return false;
    return true;
}

} // namespace

void TaskHistory::begin(Task task) {
    steps_.clear();
    at_ = 0;
    std::string text = taskText(task);
    steps_.push_back({std::move(task), std::move(text), {}, ++numbers_});
}

bool TaskHistory::record(Task now, const QString& name) {
    std::string text = taskText(now);
    const Step& last = steps_.at(at_);
    if (text == last.text && sameList(now.stan.plyta, last.task.stan.plyta))
        return false;
    const QString step = name.isEmpty() ? stepName(last.task, now) : name;
    push({std::move(now), std::move(text), step, last.number});
    return true;
}

void TaskHistory::recordAnother(Task now, const QString& name) {
    std::string text = taskText(now);
    push({std::move(now), std::move(text), name, ++numbers_});
}

void TaskHistory::push(Step step) {
    steps_.resize(at_ + 1);
    steps_.push_back(std::move(step));
    if (steps_.size() > most + 1)
        steps_.pop_front();
    at_ = steps_.size() - 1;
}

} // namespace ferna
