#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "framework/procedure.h"
#include "host/application.h"
#include "host/banded_report.h"
#include "host/member_table.h"

namespace varnel::framework {

/// What every report of the library is made of, sub-reports included: its surface, its rows, the
/// application it asks, and the guard that its procedures run in (form A). Late-bound it answers
/// to the members that it and its parts have added, then to the names of its controls.
///
/// Make one with std::make_shared: it hands out references to itself.
class DesignedReport : public BandedReport, public std::enable_shared_from_this<DesignedReport> {
  public:
    explicit DesignedReport(const Layout& layout) : surface_(layout) {}

    std::string_view ObjectName() const override { return surface_.Design().name; }
    Variant Get(std::string_view name) override;
    void Put(std::string_view name, const Variant& value) override;
    Variant Call(std::string_view name, std::span<const Variant> arguments) override;

    Surface& GetSurface() override { return surface_; }
    ReportData& Data() override { return data_; }
    /// Puts the translated captions in. A report that overrides it calls it first.
    void ActiveReport_Initialize() override;

  protected:
    /// Where a report and its parts add their late-bound members, in their constructors.
    MemberParts& Members() { return members_; }

    /// Error 91 when the host has given none.
    Application& App();
    /// Null when the host has given none.
    const std::shared_ptr<Application>& AppRef() const { return application_; }
    void SetApplication(std::shared_ptr<Application> application) {
        application_ = std::move(application);
    }

    /// Runs a procedure body in form A under this report's name.
    template <class Body>
    void Guard(std::string_view procedure, Body&& body,
               std::uint_least32_t line = __builtin_LINE()) {
        GuardFormA(application_.get(), ObjectName(), procedure, body, line);
    }

    /// Makes `handler` the format event of its section: "Detail_Format" is that of Detail. The
    /// name must be a literal.
    template <class Report>
    void Handle(std::string_view procedure, void (Report::*handler)(),
                std::uint_least32_t line = __builtin_LINE()) {
        const auto section = procedure.substr(0, procedure.rfind('_'));
        surface_.SectionAt(section).OnFormat([this, procedure, handler, line] {
            Guard(
                procedure, [this, handler] { (static_cast<Report*>(this)->*handler)(); }, line);
        });
    }

    Control& At(std::string_view control) { return surface_.At(control); }
    Section& SectionAt(std::string_view section) { return surface_.SectionAt(section); }
    /// The row that the event is about; only when Data().EndOfData() is false.
    const Row& CurrentRow() const { return data_.Current(); }
    bool EndOfData() const { return data_.EndOfData(); }

  private:
    MemberParts members_;
    Surface surface_;
    ReportData data_;
    std::shared_ptr<Application> application_;
};

}  // namespace varnel::framework
