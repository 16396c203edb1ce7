# Installs BUILD_DIR afresh into PREFIX: all of it, or only the COMPONENTS.
file(REMOVE_RECURSE ${PREFIX})
set(install ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX})
if(NOT COMPONENTS)
    execute_process(COMMAND ${install} COMMAND_ERROR_IS_FATAL ANY)
endif()
foreach(component IN LISTS COMPONENTS)
    execute_process(COMMAND ${install} --component ${component} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
