# What `cmake --install` lays out: the host integration kit. Both Windows
# builds install into one tree side by side, each module in the folder of its
# architecture (x86 for 32-bit hosts, x64 for 64-bit hosts):
#   bin/x86, bin/x64   korps.dll, korps.exe and korps-host.exe; bin/korps (native)
#   include/  korps/: the host header, the event type list and identifiers,
#             the IDL and the interface headers generated from it (the same
#             for both widths), korps_guids.cpp
#   lib/x86, lib/x64   libkorps.a, the module's import library, usable from C and C++
#   docs/     the documents
if(KORPS_LIBFUZZER)
    return()
endif()
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/ DESTINATION docs)
if(NOT WIN32)
    install(TARGETS korps_cli RUNTIME DESTINATION bin)
    return()
endif()
install(TARGETS korps korps_cli korps-host RUNTIME DESTINATION bin/${KORPS_KIT_ARCH})
install(FILES ${KORPS_IMPORT_LIBRARY} DESTINATION lib/${KORPS_KIT_ARCH})
install(FILES
    ${CMAKE_SOURCE_DIR}/include/korps/korps.h
    ${CMAKE_SOURCE_DIR}/include/korps/korps_events.h
    ${CMAKE_SOURCE_DIR}/include/korps/korps_event_list.h
    ${CMAKE_SOURCE_DIR}/include/korps/korps.idl
    ${CMAKE_SOURCE_DIR}/include/korps/korps_device.idl
    ${CMAKE_SOURCE_DIR}/include/korps/korps_guids.cpp
    ${CMAKE_BINARY_DIR}/generated/include/korps/korps_interfaces.h
    ${CMAKE_BINARY_DIR}/generated/include/korps/korps_device.h
    DESTINATION include/korps)
