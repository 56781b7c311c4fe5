# Lets repeat.awk read mistakes: each must end with status 1 and a message, and without a result.
#
# -DAWK=…  -DREPEAT=…  -DBINARY=…
set(input ${BINARY}/input)
set(output ${BINARY}/output)
file(REMOVE_RECURSE ${BINARY})

# run(TEXT): sets `status`, `said` and, if there is a result, `result`.
macro(run text)
    file(WRITE ${input} "${text}")
    execute_process(COMMAND ${AWK} -v output=${output} -f ${REPEAT} ${input}
        RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE said)
endmacro()

function(expect text result)
    run("${text}")
    file(READ ${output} found)
    file(REMOVE ${output})
    if(NOT status EQUAL 0 OR NOT said STREQUAL "" OR NOT found STREQUAL "${result}")
        message(FATAL_ERROR "${text}\nmakes ${status}: ${said}\n${found}")
    endif()
endfunction()

function(refuse line reason text)
    run("${text}")
    if(NOT status EQUAL 1 OR NOT said STREQUAL "${input}:${line}: ${reason}\n" OR EXISTS ${output})
        message(FATAL_ERROR "${text}\nmakes ${status}: ${said}")
    endif()
endfunction()

set(table "//: table t\n//:   a  b c\n//:   1  2 3\n//:   4  5\n")
expect("x // : y\n\n" "x // : y\n\n")
expect("${table}//: each t\n@a@ @b c@\n//: end\n-\n//: again t t\n" "1 2 3\n4 5\n-\n1 2 3\n4 5\n1 2 3\n4 5\n")
expect("${table}//: table u\n//:   a\n//: each u t\n@a@@a@\n\n//: end\n" "11\n\n44\n\n")

refuse(7 "no table \"u\"" "${table}//: each u\n-\n//: end\n")
refuse(8 "no table \"u\"" "${table}//: each t\n-\n//: end\n//: again u\n")
refuse(7 "no column @d@ in the table \"t\"" "${table}//: each t\n@a@ @d@\n//: end\n")
refuse(5 "no lines to repeat" "${table}//: again t\n")
refuse(6 "no lines to repeat" "${table}//: each t\n//: end\n")
refuse(5 "a second table \"t\"" "${table}${table}")
refuse(5 "3 fields in a table of 2" "${table}//:   1  2  3\n")
refuse(1 "no row of a table: //:   1  2" "//:   1  2\n")
refuse(5 "no row of a table: //:   1  2 & 3" "${table}//:   1  2 & 3\n")
refuse(6 "\"end\" is missing before \"each\"" "${table}//: each t\n//: each t\n//: end\n")
refuse(1 "\"end\" without \"each\"" "//: end\n")
refuse(6 "\"end\" is missing" "${table}//: each t\n-\n")
refuse(1 "unknown: \"ech\"" "//: ech t\n")
file(REMOVE_RECURSE ${BINARY})
