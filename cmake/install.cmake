# What `cmake --install` lays out: the host integration kit.
#   bin/      korps.dll, korps.exe and korps-host.exe (Windows build); korps (native)
#   include/  korps/: the host header, the event type identifiers, the IDL and
#             the interface headers generated from it, korps_guids.cpp
#   lib/      libkorps.a, the import library, usable from C and C++
#   docs/     the documents
if(KORPS_LIBFUZZER)
    return()
endif()
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/ DESTINATION docs)
if(NOT WIN32)
    install(TARGETS korps_cli RUNTIME DESTINATION bin)
    return()
endif()
install(TARGETS korps RUNTIME DESTINATION bin)
install(TARGETS korps_cli korps-host RUNTIME DESTINATION bin)
install(FILES ${KORPS_IMPORT_LIBRARY} DESTINATION lib)
install(FILES
    ${CMAKE_SOURCE_DIR}/include/korps/korps.h
    ${CMAKE_SOURCE_DIR}/include/korps/korps_events.h
    ${CMAKE_SOURCE_DIR}/include/korps/korps.idl
    ${CMAKE_SOURCE_DIR}/include/korps/korps_device.idl
    ${CMAKE_SOURCE_DIR}/include/korps/korps_guids.cpp
    ${CMAKE_BINARY_DIR}/generated/include/korps/korps_interfaces.h
    ${CMAKE_BINARY_DIR}/generated/include/korps/korps_device.h
    DESTINATION include/korps)
