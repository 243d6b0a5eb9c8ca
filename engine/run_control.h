#pragma once

#include "engine/engine.h"

namespace varnel::engine {

/// Counts what a run has done and asks now and then whether it is to go on.
class RunControl {
  public:
    explicit RunControl(Progress* progress) : progress_(progress) {}

    void CountRow() {
        ++result_.rows;
        Tick();
    }
    /// A row of a sub-report: not counted, but a moment to ask.
    void Tick() {
        if (++ticks_ % kRowsBetweenQuestions == 0) Ask();
    }
    void CountPage() {
        ++result_.pages;
        Ask();
    }
    bool Cancelled() const { return result_.cancelled; }
    const RunResult& Result() const { return result_; }

  private:
    static constexpr unsigned kRowsBetweenQuestions = 256;
    void Ask() {
        if (progress_ != nullptr && !progress_->Report(result_.rows, result_.pages))
            result_.cancelled = true;
    }

    Progress* progress_;
    unsigned ticks_ = 0;
    RunResult result_;
};

}  // namespace varnel::engine
