#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <type_traits>

#include "company/writing/company_writer.h"

namespace varnel::company::demo {

using Database = CompanyWriter;

/// A prepared insert that takes values of any kind. Texts must live until `Run` returns.
class Statement {
  public:
    Statement(Database& database, std::string_view sql) : statement_(database.Prepare(sql)) {}

    template <class... Values>
    void Run(const Values&... values) {
        int position = 0;
        (Bind(++position, values), ...);
        statement_->Run();
    }

  private:
    template <class Value>
    void Bind(int position, const Value& value) {
        if constexpr (std::is_integral_v<Value>)
            statement_->Bind(position, static_cast<std::int64_t>(value));
        else
            statement_->Bind(position, value);
    }
    void Bind(int position, std::nullptr_t) { statement_->BindNull(position); }
    void Bind(int position, const char* value) {  // A null pointer is a null.
        if (value == nullptr) return statement_->BindNull(position);
        statement_->Bind(position, std::string_view(value));
    }
    template <class Value>
    void Bind(int position, const std::optional<Value>& value) {
        if (!value) return statement_->BindNull(position);
        Bind(position, *value);
    }

    std::unique_ptr<WritingStatement> statement_;
};

/// Keys of which 0 stands for none.
inline std::optional<std::int64_t> KeyOrNull(std::int64_t key) {
    return key == 0 ? std::nullopt : std::optional(key);
}

}  // namespace varnel::company::demo
