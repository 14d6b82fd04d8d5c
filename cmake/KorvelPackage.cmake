# The CMake package KorvelPrint, and the Debian packages, one a component.

# What find_package(KorvelPrint) reads.
include(CMakePackageConfigHelpers)
set(config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/KorvelPrint)
configure_package_config_file(
    ${PROJECT_SOURCE_DIR}/cmake/KorvelPrintConfig.cmake.in
    ${PROJECT_BINARY_DIR}/KorvelPrintConfig.cmake
    INSTALL_DESTINATION ${config_dir})
write_basic_package_version_file(
    ${PROJECT_BINARY_DIR}/KorvelPrintConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/KorvelPrintConfig.cmake
    ${PROJECT_BINARY_DIR}/KorvelPrintConfigVersion.cmake
    DESTINATION ${config_dir} COMPONENT development)
install(EXPORT KorvelPrintTargets
    NAMESPACE korvel:: DESTINATION ${config_dir} COMPONENT development)

# The files that every Debian package has. Only packages have them: they are left out where the
# whole is installed.
set(KORVEL_MAINTAINER "The korvel-print developers <developers@korvel-print.invalid>")
set(CPACK_DEBIAN_PACKAGE_RELEASE 0korvel1) # gives way to a distribution's own -1
set(KORVEL_DEBIAN_VERSION ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
execute_process(
    COMMAND date --utc --rfc-email --date "${KORVEL_RELEASE_DATE} 12:00"
    OUTPUT_VARIABLE KORVEL_RELEASE_TIME OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND date --utc +%s --date "${KORVEL_RELEASE_DATE} 12:00"
    OUTPUT_VARIABLE release_epoch OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
configure_file(${PROJECT_SOURCE_DIR}/packaging/changelog.in changelog.Debian @ONLY)
korvel_compress(${PROJECT_BINARY_DIR}/changelog.Debian changelog.Debian.gz)
korvel_compress(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog.gz)

# Packages of one version only fit each other.
macro(korvel_package component name)
    cmake_parse_arguments(package
        "" "SECTION;SYNOPSIS;DESCRIPTION" "DEPENDS;RECOMMENDS;SUGGESTS;BREAKS;REPLACES" ${ARGN})
    install(FILES
        ${PROJECT_SOURCE_DIR}/packaging/copyright
        ${KORVEL_COMPRESSED_DIR}/changelog.gz
        ${KORVEL_COMPRESSED_DIR}/changelog.Debian.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name}
        COMPONENT ${component} EXCLUDE_FROM_ALL)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    string(TOUPPER ${component} upper)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${package_SECTION})
    set(CPACK_DEBIAN_${upper}_DESCRIPTION "${package_SYNOPSIS}\n${package_DESCRIPTION}")
    foreach(relation DEPENDS RECOMMENDS SUGGESTS BREAKS REPLACES)
        list(JOIN package_${relation} ", " CPACK_DEBIAN_${upper}_PACKAGE_${relation})
    endforeach()
endmacro()

korvel_package(print korvel-print
    SECTION utils
    SUGGESTS korvel-check korvel-settings korvel-tools
    SYNOPSIS "print-job renderer for points of sale"
    DESCRIPTION
"korvel-print turns a point of sale's print job, a small XML file, into the
command stream of a fiscal receipt printer. It lays out kitchen orders,
receipts, invoices, fiscal receipts and reports in text columns, as the
settings of the shop say.

The labels print in English, German, Spanish, French or Italian. The renderer
needs no display.")

# What needs no display library is a package of its own, for servers. Once korvel-tools had it.
korvel_package(check korvel-check
    SECTION utils
    RECOMMENDS korvel-print
    BREAKS "korvel-tools (<< ${KORVEL_DEBIAN_VERSION})"
    REPLACES "korvel-tools (<< ${KORVEL_DEBIAN_VERSION})"
    SYNOPSIS "checker of print jobs, and code pages, for korvel-print"
    DESCRIPTION
"korvel-check says what is wrong with a print job or with the settings of a
shop, before anything is printed. korvel-recode converts a command stream to
the code page of an 8-bit printer and keeps its columns. Neither needs a
display.

Schemas of print jobs, in RELAX NG and as an XSD, are included.")

korvel_package(tools korvel-tools
    SECTION utils
    DEPENDS "korvel-check (= ${KORVEL_DEBIAN_VERSION})"
    RECOMMENDS fonts-dejavu-core korvel-print
    SYNOPSIS "preview and printer simulator for korvel-print"
    DESCRIPTION
"korvel-preview shows what a print job or a command stream would put on the
paper of a fiscal receipt printer, in the terminal or as a PNG, SVG or PDF, and
says what is wrong with it. korvel-printer-sim takes streams like the printer,
over the network or on a serial line, for tills and their tests.")

korvel_package(delivery korvel-delivery
    SECTION utils
    DEPENDS "korvel-print (= ${KORVEL_DEBIAN_VERSION})"
    SUGGESTS korvel-tools
    SYNOPSIS "delivery of print jobs, each at most once, for korvel-print"
    DESCRIPTION
"korvel-deliver checks a print job, renders it with korvel-print and sends it
to a printer in the network, at USB or on a serial line. A document is sent at
most once under one id, whatever is killed, unplugged or full; what may have
reached the printer is not sent again until a person has looked at the paper.

korvel-journal says what became of each document, proves that nothing was
changed since, and adds up what was registered.")

korvel_package(queue printer-driver-korvel
    SECTION text
    DEPENDS cups "korvel-delivery (= ${KORVEL_DEBIAN_VERSION})"
        "korvel-print (= ${KORVEL_DEBIAN_VERSION})"
    SUGGESTS korvel-tools
    SYNOPSIS "printer driver for CUPS: print jobs of tills on receipt printers"
    DESCRIPTION
"With this driver a till prints its jobs by lp to a queue of CUPS. Each job is
checked, rendered with korvel-print, and sent to the printer at most once. A
queue waits for a printer that is off. A job that may have been printed, and
may not, is held until a person has looked at the paper.

Each queue has settings and a code page of its own, and a journal says what
became of each job.")
set(CPACK_DEBIAN_QUEUE_PACKAGE_CONTROL_EXTRA
    "${PROJECT_SOURCE_DIR}/packaging/queue/postinst"
    "${PROJECT_SOURCE_DIR}/packaging/queue/postrm")

korvel_package(settings korvel-settings
    SECTION utils
    DEPENDS "korvel-print (= ${KORVEL_DEBIAN_VERSION})"
    RECOMMENDS fonts-dejavu-core libqt6svg6 qt6-translations-l10n
    SYNOPSIS "settings editor for korvel-print"
    DESCRIPTION
"korvel-settings shows the settings of korvel-print in a form, and beside it a
sample document as the printer would put it on paper: column widths,
headers and labels can be tried before they are saved.")

korvel_package(development korvel-print-dev
    SECTION libdevel
    DEPENDS "qt6-5compat-dev (>= 6.4)" "qt6-base-dev (>= 6.4)"
    SUGGESTS cmake
    SYNOPSIS "print-job renderer for points of sale - development files"
    DESCRIPTION
"korvel-print turns a point of sale's print job, a small XML file, into the
command stream of a fiscal receipt printer.

This package has the static libraries and headers to build a back end for
another printer: the document engine, the settings store and the back end of
korvel-print itself. CMake finds them as the package KorvelPrint.")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME korvel-print)
set(CPACK_PACKAGE_CONTACT "${KORVEL_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has a synopsis of its own
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SOURCE korvel-print)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# Whoever packs the same sources, whenever and wherever, gets the same packages.
file(WRITE ${PROJECT_BINARY_DIR}/PackageTime.cmake "set(ENV{SOURCE_DATE_EPOCH} ${release_epoch})\n")
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_BINARY_DIR}/PackageTime.cmake)
include(CPack)
