# Runs PROGRAM and looks for the lines that a reader of the example would check by hand.
execute_process(COMMAND ${PROGRAM}
    OUTPUT_VARIABLE output ERROR_VARIABLE errors RESULT_VARIABLE result)
if(NOT result EQUAL 0 OR NOT errors STREQUAL "")
    message(FATAL_ERROR "The example ended with ${result} and said: ${errors}")
endif()
string(REGEX REPLACE " +" " " output "${output}")
foreach(line
        "Northern Kettle Company"
        "General Journal"
        "from 2025-03-01 to 2025-03-31"
        "7 2025-03-31 March rent and a supplier in Boston #Ref: R-0331"
        "5300 - Rent 1850.00\n"
        "5410 - Packaging 1372.50 1000.00 USD"
        "1010 - Bank 3222.50\n"
        "Grand-Total: 1 entries 3222.50 3222.50")
    string(FIND "${output}" "${line}" found)
    if(found EQUAL -1)
        message(FATAL_ERROR "The output lacks \"${line}\":\n${output}")
    endif()
endforeach()
