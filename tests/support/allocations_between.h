#pragma once

#include <string_view>

#include "engine/engine.h"
#include "tests/support/allocation_count.h"

namespace varnel::test {

/// How often a run asks for memory between the header of its only group and the group's footer.
inline long AllocationsBetween(std::string_view header, std::string_view footer,
                               BandedReport& report) {
    class Sink final : public engine::BandSink {
      public:
        Sink(std::string_view header, std::string_view footer) : header_(header), footer_(footer) {}
        void Begin(const engine::DocumentInfo&, const Surface&) override {}
        void End() override {}
        void Write(const Section& section, const engine::BandMark&) override {
            if (section.Name() == header_) count = -AllocationCount();
            if (section.Name() == footer_) count += AllocationCount();
        }
        long count = 0;

      private:
        std::string_view header_, footer_;
    };
    Sink sink(header, footer);
    engine::RunToBands(report, {}, sink);
    return sink.count;
}

}  // namespace varnel::test
