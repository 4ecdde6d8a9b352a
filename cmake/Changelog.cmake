# What CHANGELOG.md says of the releases: the project's version, and the texts that descriptions of
# the program and packages tell of each. A release is a heading "## [1.2.3] - 2030-12-31", a
# paragraph of what it is about, the same in Spanish in a comment ("<!-- es: ... -->"), and the
# lists of what has changed. Anything else fails.

# changelog_lines(FILE OUT): the lines of a file as a list, with brackets and semicolons, which
# lists would not keep, told by names; changelog_text makes them what they were.
function(changelog_lines FILE OUT)
    file(READ "${FILE}" text)
    string(REPLACE ";" "@semicolon@" text "${text}")
    string(REPLACE "[" "@open@" text "${text}")
    string(REPLACE "]" "@close@" text "${text}")
    string(REPLACE "\n" ";" text "${text}")
    set(${OUT} "${text}" PARENT_SCOPE)
endfunction()

function(changelog_text LINE OUT)
    string(REPLACE "@semicolon@" ";" text "${LINE}")
    string(REPLACE "@open@" "[" text "${text}")
    string(REPLACE "@close@" "]" text "${text}")
    set(${OUT} "${text}" PARENT_SCOPE)
endfunction()

# changelog_releases(FILE): sets, for the caller, changelog_versions, the newest in front, and of
# each VERSION changelog_VERSION_date, _en, _es (its paragraphs) and _items (its lists, lines that
# begin with "- " and their continuations, all headings left out).
function(changelog_releases FILE)
    set(number "[0-9]+[.][0-9]+[.][0-9]+")
    set(date "[0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9]")
    changelog_lines("${FILE}" lines)
    set(versions "")
    set(version "")
    foreach(line IN LISTS lines)
        if(line MATCHES "^## @open@Unreleased@close@$")
            set(version "")
        elseif(line MATCHES "^## @open@(${number})@close@ - (${date})$")
            set(version "${CMAKE_MATCH_1}")
            list(APPEND versions "${version}")
            set(${version}_date "${CMAKE_MATCH_2}")
            set(part en)
        elseif(line MATCHES "^## ")
            changelog_text("${line}" line)
            message(FATAL_ERROR "${FILE}: no heading of a release: ${line}")
        elseif(version STREQUAL "")
            continue()
        elseif(line MATCHES "^### ")
            set(part items)
        elseif(line MATCHES "^<!-- es: (.+)$")
            set(part es)
            string(APPEND ${version}_es "${CMAKE_MATCH_1} ")
        elseif(NOT line STREQUAL "")
            string(STRIP "${line}" stripped)
            if(part STREQUAL "items")
                string(APPEND ${version}_items "${line}\n")
            else()
                string(APPEND ${version}_${part} "${stripped} ")
            endif()
        endif()
    endforeach()
    if(versions STREQUAL "")
        message(FATAL_ERROR "${FILE}: no release")
    endif()
    foreach(version IN LISTS versions)
        string(REPLACE " -->" "" ${version}_es "${${version}_es}")
        foreach(part IN ITEMS date en es items)
            string(STRIP "${${version}_${part}}" text)
            if(text STREQUAL "")
                message(FATAL_ERROR "${FILE}: nothing for \"${part}\" of release ${version}")
            endif()
            changelog_text("${text}" text)
            set(changelog_${version}_${part} "${text}" PARENT_SCOPE)
        endforeach()
    endforeach()
    set(changelog_versions "${versions}" PARENT_SCOPE)
endfunction()

# changelog_version(FILE OUT): the newest release. The project is configured anew when it changes.
function(changelog_version FILE OUT)
    changelog_releases("${FILE}")
    list(GET changelog_versions 0 version)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${FILE}")
    set(${OUT} "${version}" PARENT_SCOPE)
endfunction()

# changelog_metainfo(FILE OUT): the releases as the lines of a metainfo's <releases>.
function(changelog_metainfo FILE OUT)
    changelog_releases("${FILE}")
    set(xml "")
    foreach(version IN LISTS changelog_versions)
        foreach(language IN ITEMS es en)
            set(text "${changelog_${version}_${language}}")
            string(REPLACE "&" "&amp;" text "${text}")
            string(REPLACE "<" "&lt;" text "${text}")
            string(REPLACE ">" "&gt;" ${language} "${text}")
        endforeach()
        string(APPEND xml
            "    <release version=\"${version}\" date=\"${changelog_${version}_date}\">\n"
            "      <description>\n"
            "        <p>${es}</p>\n"
            "        <p xml:lang=\"en\">${en}</p>\n"
            "      </description>\n"
            "    </release>\n")
    endforeach()
    string(REGEX REPLACE "\n$" "" xml "${xml}")
    set(${OUT} "${xml}" PARENT_SCOPE)
endfunction()

# changelog_debian(FILE PACKAGE MAINTAINER OUT): the releases in the form of a Debian changelog, whose
# lines have 80 characters. Needs what any Debian system has.
function(changelog_debian FILE PACKAGE MAINTAINER OUT)
    changelog_releases("${FILE}")
    set(text "")
    foreach(version IN LISTS changelog_versions)
        execute_process(COMMAND date -R -u -d "${changelog_${version}_date}"
            OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        string(REGEX REPLACE "(^|\n)- " "\\1* " items "${changelog_${version}_items}")
        string(REPLACE "\n" "\n  " items "${items}")
        file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/items.txt" "  ${items}\n")
        execute_process(COMMAND fmt --tagged-paragraph --width=80
            "${CMAKE_CURRENT_BINARY_DIR}/items.txt"
            OUTPUT_VARIABLE items COMMAND_ERROR_IS_FATAL ANY)
        string(APPEND text
            "${PACKAGE} (${version}) unstable; urgency=medium\n\n"
            "${items}\n"
            " -- ${MAINTAINER}  ${date}\n\n")
    endforeach()
    string(REGEX REPLACE "\n\n$" "\n" text "${text}")
    set(${OUT} "${text}" PARENT_SCOPE)
endfunction()
