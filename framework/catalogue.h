#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "host/report.h"

namespace varnel::framework {

/// A report of the library: its class, its title, and how it is made. `make` is null for one that
/// is not built yet.
struct CatalogueEntry {
    std::string_view class_name;
    std::int16_t title_text;
    std::shared_ptr<IReport> (*make)();
};

/// A class that hosts create by its identifier.
struct PublicClass {
    std::string_view identifier;
    ObjectRef (*make)();
};

/// Every report. Defined beside the reports, so that this folder needs none of them.
std::span<const CatalogueEntry> Catalogue();
/// The public classes besides the factory. Defined beside the reports too.
std::span<const PublicClass> PublicClasses();

}  // namespace varnel::framework
