# Writes ctest's tests of check_test, one for each lane, from the binary's own list: what it holds cannot be missing from
# a run, and a run shows which lane failed.
#
# cmake -D PROGRAM=check_test -D OUT=file that ctest includes -P lanes.cmake

execute_process(COMMAND ${PROGRAM} --gtest_list_tests OUTPUT_VARIABLE list COMMAND_ERROR_IS_FATAL ANY)
# "All/Lane." and below it, indented, "Values/zepmAdd_vv_32f  # GetParam() = ..."
string(REGEX REPLACE "[][;]" "" list "${list}")
string(REPLACE "\n" ";" lines "${list}")
set(lanes "")
foreach(line ${lines})
    if(line MATCHES "^([^ ]+)\\.")
        set(suite ${CMAKE_MATCH_1})
    elseif(line MATCHES "^  ([^/ ]+)(/?)")
        list(APPEND lanes "${suite}.${CMAKE_MATCH_1}${CMAKE_MATCH_2}")
    endif()
endforeach()
list(REMOVE_DUPLICATES lanes)

set(text "")
foreach(filter ${lanes})
    string(REGEX REPLACE "^.*/([^/]+\\.)" "\\1" lane ${filter}) # without the name of the instantiation
    string(REGEX REPLACE "/$" "" lane ${lane})
    string(REGEX REPLACE "/$" "/*" filter ${filter})
    # More threads than processors would spin in each other's way.
    set(properties "SKIP_RETURN_CODE 77 ENVIRONMENT OMP_WAIT_POLICY=passive")
    if(lane MATCHES "^DriverLane\\.")
        string(APPEND properties " LABELS drivers")
    endif()
    string(APPEND text "add_test(check.${lane} [[${PROGRAM}]] --gtest_brief=1 --gtest_filter=${filter})\n"
                       "set_tests_properties(check.${lane} PROPERTIES ${properties})\n")
endforeach()
file(WRITE ${OUT} "${text}")
