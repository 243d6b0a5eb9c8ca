#pragma once

#include <span>

#include "company/demo/amounts.h"

namespace varnel::company::demo {

/// Sales taxes on a party's invoices: none outside Canada, GST and QST in Québec, HST in Ontario.
enum class TaxZone { kNone, kQuebec, kOntario };

struct Customer {
    const char* name;
    int currency;
    TaxZone zone;
    int days_to_pay;
    int segment;
};

/// Suppliers of goods.
struct Maker {
    const char* name;
    int currency;
    int days_to_pay;
};

/// Suppliers of services: where their invoices go and how much one usually is, in dollars.
struct ServiceSupplier {
    const char* name;
    const char* account;
    int usual_amount;
    int weight;
};

/// A product line's goods are sold and expensed on accounts of their own.
struct Product {
    const char* name;
    int price_cents;
    int line;  // 1 to 6: accounts 40n0 and 50n0
};

struct CodeAndName {
    const char* code;
    const char* name;
};

inline constexpr const char* kCompanyName = "Tamarack & Brume Kitchenware Ltd.";

std::span<const Customer> Customers();
std::span<const Maker> Makers();
std::span<const ServiceSupplier> ServiceSuppliers();
std::span<const Product> Products();
/// Their ids are 1, 2, … in this order.
std::span<const CodeAndName> Segments();
std::span<const CodeAndName> Projects();
std::span<const char* const> RemarkTexts();

}  // namespace varnel::company::demo
