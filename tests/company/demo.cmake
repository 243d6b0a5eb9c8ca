varnel_test(NAME company_demo_test
    SOURCES
        demo_believable_test.cpp
        demo_database.cpp demo_database.h
        demo_features_test.cpp
        demo_file_test.cpp
        demo_ledger_test.cpp
        demo_reconciliation_test.cpp
    LIBRARIES Varnel::company PkgConfig::SQLITE)
