#include "host/currency.h"

int main() {
    const auto sum = varnel::Currency::Parse("0.1000") + varnel::Currency::Parse("0.2000");
    return sum.ToText() == "0.3000" ? 0 : 1;
}
