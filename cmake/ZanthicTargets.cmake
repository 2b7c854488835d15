# What every target of this project is compiled with.

set(ZANTHIC_WARNINGS -Wall -Wextra -Wpedantic -Wshadow)
if(ZANTHIC_WERROR)
    list(APPEND ZANTHIC_WARNINGS -Werror)
endif()

set(ZANTHIC_SANITIZER_FLAGS -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)

# zanthic_defaults(target): warnings, sanitizers and the stricter Qt definitions.
function(zanthic_defaults target)
    target_compile_options(${target} PRIVATE ${ZANTHIC_WARNINGS})
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_USE_QSTRINGBUILDER
        QT_NO_FOREACH QT_STRICT_ITERATORS QT_MESSAGELOGCONTEXT)
    if(ZANTHIC_SANITIZE)
        target_compile_options(${target} PRIVATE ${ZANTHIC_SANITIZER_FLAGS})
        target_link_options(${target} PRIVATE ${ZANTHIC_SANITIZER_FLAGS})
    endif()
endfunction()

# zanthic_stage_headers(target headers...): lets the build tree include public headers the way users do,
# as <Zanthic/Name.h>, whichever folder they live in.
function(zanthic_stage_headers target)
    foreach(header IN LISTS ARGN)
        get_filename_component(name ${header} NAME)
        get_filename_component(full ${header} ABSOLUTE)
        file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/include/Zanthic/${name}
             CONTENT "#include \"${full}\"\n" @ONLY)
    endforeach()
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${CMAKE_BINARY_DIR}/include>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    install(FILES ${ARGN} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Zanthic COMPONENT Development)
endfunction()
