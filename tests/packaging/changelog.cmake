# What cmake/Changelog.cmake reads of a changelog, and that it refuses what is none.
#   cmake -DMODULE=... -DFOLDER=... -P changelog.cmake          all of it
#   cmake -DMODULE=... -DFOLDER=... -DREAD=FILE -P ...          only reads FILE
include("${MODULE}")
if(DEFINED READ)
    changelog_releases("${READ}")
    return()
endif()

function(equal WHAT GOT WANTED)
    if(NOT GOT STREQUAL WANTED)
        message(SEND_ERROR "${WHAT}: got\n${GOT}\nin place of\n${WANTED}")
    endif()
endfunction()

set(good [=[
# Changelog

## [Unreleased]

### Added

- What is to come.

## [0.10.2] - 2030-02-28

Less [of it]; a < b & b > a.

<!-- es: Menos [de eso];
y más. -->

### Fixed

- One thing, see [this]; and a text that goes on for more than the eighty characters of a line.
- Another
  one.

## [0.9.0] - 2029-12-31

All of it.

<!-- es: Todo. -->

### Added

- Everything.
]=])
file(WRITE "${FOLDER}/good.md" "${good}")
changelog_version("${FOLDER}/good.md" version)
equal(version "${version}" 0.10.2)
changelog_releases("${FOLDER}/good.md")
equal(versions "${changelog_versions}" "0.10.2;0.9.0")
equal(date "${changelog_0.10.2_date}" 2030-02-28)
equal(older "${changelog_0.9.0_date}" 2029-12-31)

changelog_metainfo("${FOLDER}/good.md" text)
equal(metainfo "${text}" [=[
    <release version="0.10.2" date="2030-02-28">
      <description>
        <p>Menos [de eso]; y más.</p>
        <p xml:lang="en">Less [of it]; a &lt; b &amp; b &gt; a.</p>
      </description>
    </release>
    <release version="0.9.0" date="2029-12-31">
      <description>
        <p>Todo.</p>
        <p xml:lang="en">All of it.</p>
      </description>
    </release>]=])

# 28 February 2030 is a Thursday, 31 December 2029 a Monday.
changelog_debian("${FOLDER}/good.md" caudalera "Somebody <somebody@example.org>" text)
equal(debian "${text}" [=[
caudalera (0.10.2) unstable; urgency=medium

  * One thing, see [this]; and a text that goes on for more than the eighty
    characters of a line.
  * Another one.

 -- Somebody <somebody@example.org>  Thu, 28 Feb 2030 00:00:00 +0000

caudalera (0.9.0) unstable; urgency=medium

  * Everything.

 -- Somebody <somebody@example.org>  Mon, 31 Dec 2029 00:00:00 +0000
]=])

# refused(NAME FROM TO): the good one with something else in its place is none.
function(refused NAME FROM TO)
    string(REPLACE "${FROM}" "${TO}" bad "${good}")
    if(bad STREQUAL good)
        message(SEND_ERROR "${NAME}: nothing to replace")
    endif()
    file(WRITE "${FOLDER}/bad.md" "${bad}")
    execute_process(COMMAND "${CMAKE_COMMAND}" "-DMODULE=${MODULE}" "-DFOLDER=${FOLDER}"
        "-DREAD=${FOLDER}/bad.md" -P "${CMAKE_CURRENT_LIST_FILE}"
        RESULT_VARIABLE status ERROR_QUIET)
    if(status EQUAL 0)
        message(SEND_ERROR "${NAME}: taken")
    endif()
endfunction()
refused("a date of another form" "2030-02-28" "28/02/2030")
refused("no brackets" "[0.9.0] - " "0.9.0 - ")
refused("two numbers" "0.10.2" "0.10")
refused("no paragraph" "All of it." "")
refused("no Spanish" "<!-- es: Todo. -->" "")
refused("no list" "- Everything." "")
string(REGEX REPLACE "## .0[.].*" "" good "${good}")
refused("no release" "What is to come" "Nothing")
