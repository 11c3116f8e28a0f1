# Installs the library into a fresh prefix, builds examples/host against the installed package
# and runs its check on the offscreen platform. -DBUILD_DIR -DSOURCE_DIR -DWORK_DIR
file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix
                RESULT_VARIABLE result)
if(result)
  message(FATAL_ERROR "install failed")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR}/examples/host -B ${WORK_DIR}/build -G Ninja
                        -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix -DCMAKE_BUILD_TYPE=Debug
                RESULT_VARIABLE result)
if(result)
  message(FATAL_ERROR "configuring the example host against the package failed")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/build RESULT_VARIABLE result)
if(result)
  message(FATAL_ERROR "building the example host failed")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
                        ${WORK_DIR}/build/nvrandom_host --check
                OUTPUT_VARIABLE output RESULT_VARIABLE result)
message("${output}")
if(result OR NOT output MATCHES "embedded: yes")
  message(FATAL_ERROR "the example host did not embed the dialog")
endif()
