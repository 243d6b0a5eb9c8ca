varnel_test(NAME company_host_test
    SOURCES
        address_test.cpp
        host_balances_test.cpp
        host_company_test.cpp
        host_conformance_test.cpp
        host_dialogs_test.cpp
        host_filter_test.cpp
        host_formats_test.cpp
        host_small_company.cpp host_small_company.h
        host_statement_balances_test.cpp
        host_texts_test.cpp
    LIBRARIES varnel_test_support Varnel::company PkgConfig::SQLITE)
