#include "host/application.h"

#include "host/missing_service.h"

namespace varnel {

namespace {

std::weak_ptr<Application>& Running() {
    static std::weak_ptr<Application> running;
    return running;
}

}  // namespace

DialogService& Application::Dialogs() { RaiseMissingService("dialogs"); }

void SetRunningHost(std::weak_ptr<Application> application) { Running() = std::move(application); }

std::shared_ptr<Application> RunningHost() { return Running().lock(); }

}  // namespace varnel
