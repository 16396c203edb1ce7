# Debian packages, made by CPack: the libraries with their translations, what programs are built with, and each program. Who
# only needs the vocabulary is spared the library that reads catalogues, and its XML parser.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR RVProductBase)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "vocabulary of a print-product ordering application")
set(CPACK_PACKAGE_CONTACT "RVProductBase developers <rvproductbase@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
    ${PROJECT_BINARY_DIR}/libs/RVCore ${PROJECT_BINARY_DIR}/libs/RVXML ${PROJECT_BINARY_DIR}/libs/RVProductBase
    ${PROJECT_BINARY_DIR}/libs/RVCatalogue
)

set(same_version "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(library librvproductbase${PROJECT_VERSION_MAJOR})
set(catalogue_library librvcatalogue${PROJECT_VERSION_MAJOR})

# rv_shlibs(component package libraries...): whoever is linked with one of the libraries depends on the package.
function(rv_shlibs component package)
    set(file ${PROJECT_BINARY_DIR}/debian/${component}/shlibs)
    foreach(name IN LISTS ARGN)
        list(APPEND lines "lib${name} ${PROJECT_VERSION_MAJOR} ${package} (>= ${PROJECT_VERSION})\n")
    endforeach()
    file(WRITE ${file} ${lines})
    set(CPACK_DEBIAN_${component}_PACKAGE_CONTROL_EXTRA ${file} PARENT_SCOPE)
endfunction()

set(vocabulary "Value classes for what photo books, calendars, cards, posters, canvas, prints and gifts
are made of, what orders and prices are built from and what page layout needs.")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "${vocabulary}
.
This package contains the shared libraries and the German and English display texts.")
rv_shlibs(LIBRARY ${library} RVCore RVXML RVProductBase)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME librvproductbase-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library} ${same_version}, qt6-base-dev (>= 6.4)")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "${vocabulary}
.
This package contains the headers, the CMake packages and the pkg-config file.")

set(reading "Reads the catalogues of an application that sells print products, product by product, and finds what is
wrong with them.")

set(CPACK_DEBIAN_CATALOGUE_LIBRARY_PACKAGE_NAME ${catalogue_library})
set(CPACK_DEBIAN_CATALOGUE_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_CATALOGUE_LIBRARY_PACKAGE_DEPENDS "${library} ${same_version}")
set(CPACK_DEBIAN_CATALOGUE_LIBRARY_DESCRIPTION "${reading}
.
This package contains the shared library and the German texts of its findings and errors.")
rv_shlibs(CATALOGUE_LIBRARY ${catalogue_library} RVCatalogue)

set(CPACK_DEBIAN_CATALOGUE_DEVELOPMENT_PACKAGE_NAME librvcatalogue-dev)
set(CPACK_DEBIAN_CATALOGUE_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_CATALOGUE_DEVELOPMENT_PACKAGE_DEPENDS
    "${catalogue_library} ${same_version}, librvproductbase-dev ${same_version}"
)
set(CPACK_DEBIAN_CATALOGUE_DEVELOPMENT_DESCRIPTION "${reading}
.
This package contains the headers, the CMake package and the pkg-config file.")

set(CPACK_DEBIAN_RVCATALOG_PACKAGE_NAME rvcatalog)
set(CPACK_DEBIAN_RVCATALOG_PACKAGE_SECTION utils)
# Font sizes of spines are those of DejaVu Sans, as every machine has to name the same.
set(CPACK_DEBIAN_RVCATALOG_PACKAGE_DEPENDS
    "${library} ${same_version}, ${catalogue_library} ${same_version}, fonts-dejavu-core"
)
set(CPACK_DEBIAN_RVCATALOG_DESCRIPTION "The program lists the products of a catalogue with page counts, spine widths and
options, explains keywords, and checks the order line of a project against the catalogue.")

# Its icon is an SVG drawing, which Qt reads with a plug-in. Buttons of dialogs speak German with Qt's own translations.
set(CPACK_DEBIAN_RVBROWSER_PACKAGE_NAME rvbrowser)
set(CPACK_DEBIAN_RVBROWSER_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_RVBROWSER_PACKAGE_DEPENDS
    "${library} ${same_version}, ${catalogue_library} ${same_version}, libqt6svg6, fonts-dejavu-core"
)
set(CPACK_DEBIAN_RVBROWSER_PACKAGE_RECOMMENDS "qt6-translations-l10n")
set(CPACK_DEBIAN_RVBROWSER_PACKAGE_SUGGESTS "rvcatalog")
set(CPACK_DEBIAN_RVBROWSER_DESCRIPTION "The window shows the products of a catalogue: attributes, page counts with the spine,
the page with its barcodes, options, the lines and price classes that they become in an order, and what is wrong with
the catalogue.")

include(CPack)
foreach(component RVCore RVXML RVProductBase)
    cpack_add_component(${component} GROUP library)
endforeach()
foreach(component RVTemplateClasses RVCore RVXML RVProductBase)
    cpack_add_component(${component}Development GROUP development)
endforeach()
cpack_add_component(RVCatalogue GROUP catalogue_library)
cpack_add_component(RVCatalogueDevelopment GROUP catalogue_development)
cpack_add_component(rvcatalog GROUP rvcatalog)
cpack_add_component(rvbrowser GROUP rvbrowser)
