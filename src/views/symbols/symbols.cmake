# The icons are read from their package when the program is built; none of them lies in this tree.
set(QUIB_ICONS_DIR /usr/share/bootstrap-icons/svg CACHE PATH "Folder of the bootstrap-icons SVG files")
file(GLOB icons ${QUIB_ICONS_DIR}/*.svg)
if(NOT icons)
    message(FATAL_ERROR "No icons in ${QUIB_ICONS_DIR}: install the package bootstrap-icons, "
        "or set QUIB_ICONS_DIR to the folder of its SVG files")
endif()

qt_add_resources(quib_views icons PREFIX /quib/symbols BASE ${QUIB_ICONS_DIR} FILES ${icons})
qt_add_resources(quib_views symbol_aliases PREFIX /quib/symbols BASE symbols
    FILES symbols/symbol-aliases.tsv)
