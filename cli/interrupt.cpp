#include "cli/interrupt.h"

#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <climits>
#include <csignal>

#include "cli/errors.h"

namespace varnel::cli {

namespace {

volatile std::sig_atomic_t stop_signal = 0;
volatile std::sig_atomic_t has_unfinished_file = 0;
char unfinished_file[PATH_MAX];

// Calls nothing but what a signal handler may call.
void HandleSignal(int signal) {
    if (stop_signal != 0) {
        if (has_unfinished_file != 0) ::unlink(unfinished_file);
        ::_exit(kSignalBase + signal);
    }
    stop_signal = signal;
}

}  // namespace

void CatchSignals() {
    struct sigaction action {};
    action.sa_handler = HandleSignal;  // No SA_RESTART: a wait for a reader or for room ends.
    ::sigemptyset(&action.sa_mask);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction former {};
        ::sigaction(signal, nullptr, &former);
        // A program started by nohup, or in the background of a script, keeps ignoring it.
        if (former.sa_handler != SIG_IGN) ::sigaction(signal, &action, nullptr);
    }
    std::signal(SIGXFSZ, SIG_IGN);
}

int StopSignal() { return stop_signal; }

void ThrowIfInterrupted() {
    if (stop_signal != 0) throw Interrupted();
}

void SetUnfinishedFile(const std::string& path) {
    has_unfinished_file = 0;
    std::atomic_signal_fence(std::memory_order_seq_cst);
    if (path.empty() || path.size() >= sizeof unfinished_file) return;
    std::copy_n(path.c_str(), path.size() + 1, unfinished_file);
    std::atomic_signal_fence(std::memory_order_seq_cst);
    has_unfinished_file = 1;
}

}  // namespace varnel::cli
