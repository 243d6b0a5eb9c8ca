#include "cli/describe_failure.h"

#include <new>
#include <system_error>

#include "cli/errors.h"
#include "cli/interrupt.h"

namespace varnel::cli {

namespace {

std::string_view WayOut(const std::error_code& code) {
    if (code == std::errc::no_space_on_device) return "; make room there or write elsewhere";
    if (code == std::errc::file_too_large) return "; raise the limit on file sizes (ulimit -f)";
    if (code == std::errc::permission_denied || code == std::errc::read_only_file_system)
        return "; change the permissions of the file or folder, or write elsewhere";
    if (code == std::errc::broken_pipe) return "; the program that reads it has ended";
    return "; write elsewhere";
}

}  // namespace

int TellFailure(Console& console) {
    if (StopSignal() != 0) {
        console.Say("interrupted; no file was written");
        return kSignalBase + StopSignal();
    }
    try {
        throw;
    } catch (const UsageError& error) {
        console.Say(error.what());
        return kUsage;
    } catch (const std::system_error& error) {
        console.Say(error.what() + std::string(WayOut(error.code())));
    } catch (const std::bad_alloc&) {
        console.Say("out of memory; close other programs or narrow the period");
    } catch (const std::exception& error) {
        console.Say(error.what());
    }
    return kFailed;
}

}  // namespace varnel::cli
