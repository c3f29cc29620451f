# Installs the library into a folder of its own, builds the consumer against that alone and runs it:
# cmake -DBUILD_DIR=... -DSOURCE_DIR=... -DTOOLCHAIN=... -DEMULATOR=... -DFLAGS=... -P run_test.cmake
set(work ${BUILD_DIR}/consumer)
file(REMOVE_RECURSE ${work})

function(step)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
endfunction()

step(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${work}/prefix)
set(options -DCMAKE_PREFIX_PATH=${work}/prefix -DCMAKE_BUILD_TYPE=Release "-DCMAKE_CXX_FLAGS=${FLAGS}")
if(TOOLCHAIN)
    list(APPEND options -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN} -DCMAKE_FIND_ROOT_PATH=${work}/prefix
         -DCMAKE_EXE_LINKER_FLAGS=-static)
endif()
step(${CMAKE_COMMAND} -G Ninja -S ${SOURCE_DIR} -B ${work}/build ${options})
step(${CMAKE_COMMAND} --build ${work}/build)
if(TOOLCHAIN)
    file(GLOB libraries ${work}/prefix/bin/*.dll)
    file(COPY ${libraries} DESTINATION ${work}/build)
    file(REMOVE ${work}/build/CMakeCache.txt)  # the emulator looks upward for the build that holds the prefix
    step(${EMULATOR} ${work}/build/consumer.exe)
else()
    step(${work}/build/consumer)
endif()
