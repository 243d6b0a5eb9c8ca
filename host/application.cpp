#include "host/application.h"

namespace varnel {

namespace {

std::weak_ptr<Application>& Running() {
    static std::weak_ptr<Application> running;
    return running;
}

}  // namespace

void SetRunningHost(std::weak_ptr<Application> application) { Running() = std::move(application); }

std::shared_ptr<Application> RunningHost() { return Running().lock(); }

}  // namespace varnel
