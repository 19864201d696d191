# ctest reads this to make a test of its own for each lane of check_test, so that a run shows which one failed. The lanes
# are the binary's own list: what it holds cannot be missing from a run.

execute_process(COMMAND ${program} --gtest_list_tests OUTPUT_VARIABLE list COMMAND_ERROR_IS_FATAL ANY)
# "All/Lane." and below it, indented, "Values/zepmAdd_vv_32f  # GetParam() = ..."
string(REGEX REPLACE "[][;]" "" list "${list}")
string(REPLACE "\n" ";" lines "${list}")
set(filters "")
foreach(line ${lines})
    if(line MATCHES "^([^ ]+)\\.")
        set(suite ${CMAKE_MATCH_1})
    elseif(line MATCHES "^  ([^/ ]+)(/?)")
        list(APPEND filters "${suite}.${CMAKE_MATCH_1}${CMAKE_MATCH_2}")
    endif()
endforeach()
list(REMOVE_DUPLICATES filters)

foreach(filter ${filters})
    string(REGEX REPLACE "^.*/([^/]+\\.)" "\\1" lane ${filter}) # without the name of the instantiation
    string(REGEX REPLACE "/$" "" lane ${lane})
    string(REGEX REPLACE "/$" "/*" filter ${filter})
    add_test(check.${lane} ${program} --gtest_brief=1 --gtest_filter=${filter})
    # More threads than processors would spin in each other's way.
    set_tests_properties(check.${lane} PROPERTIES SKIP_RETURN_CODE 77 ENVIRONMENT OMP_WAIT_POLICY=passive)
    if(lane MATCHES "^DriverLane\\.")
        set_tests_properties(check.${lane} PROPERTIES LABELS drivers)
    endif()
endforeach()
