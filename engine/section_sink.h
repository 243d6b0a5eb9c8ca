#pragma once

#include "engine/parts.h"

namespace varnel::engine {

/// Formats the sections that frame a page, once for each call; null when one prints nothing.
class PageFrame {
  public:
    virtual const Part* FormatHeader() = 0;
    virtual const Part* FormatFooter() = 0;
    /// The space the page footer takes as it stands, before it is formatted.
    virtual Twips FooterHeight() const = 0;

  protected:
    ~PageFrame() = default;
};

/// Takes the sections of a run in order, each one just formatted.
class SectionSink {
  public:
    virtual ~SectionSink() = default;
    /// The report has started; the surface may still be widened.
    virtual void Begin(Surface& surface, PageFrame& frame) = 0;
    /// `printed` is false for an instance that was hidden or skipped: it takes no space, but it
    /// tells where groups begin and end.
    virtual void Write(const Part& part, bool printed) = 0;
    /// After the report header.
    virtual void BeginBody() = 0;
    /// After the report footer.
    virtual void End() = 0;
};

/// One endless page: page header and footer come once.
class EndlessSink : public SectionSink {
  public:
    void Begin(Surface& surface, PageFrame& frame) override {
        frame_ = &frame;
        Start(surface);
    }
    void Write(const Part& part, bool printed) override { printed ? Take(part) : Pass(part); }
    void BeginBody() override {
        if (const Part* header = frame_->FormatHeader()) Take(*header);
    }
    void End() override {
        if (const Part* footer = frame_->FormatFooter()) Take(*footer);
    }

  private:
    virtual void Start(Surface& surface) = 0;
    virtual void Take(const Part& part) = 0;
    /// One that does not print.
    virtual void Pass(const Part&) {}

    PageFrame* frame_ = nullptr;
};

}  // namespace varnel::engine
