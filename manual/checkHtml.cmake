# cmake -DTIDY=... -DFOLDER=... -P checkHtml.cmake: whether every page of the folder is valid HTML.
file(GLOB pages "${FOLDER}/*.html")
list(LENGTH pages count)
if(count LESS 40)
    message(FATAL_ERROR "only ${count} pages in ${FOLDER}")
endif()
foreach(page IN LISTS pages)
    execute_process(COMMAND "${TIDY}" -quiet -errors "${page}"
        RESULT_VARIABLE result ERROR_VARIABLE faults OUTPUT_QUIET)
    if(NOT result EQUAL 0)
        message(SEND_ERROR "${page}\n${faults}")
    endif()
endforeach()
