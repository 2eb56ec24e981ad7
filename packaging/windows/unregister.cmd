@echo off
rem Takes back what register.cmd did; the same options.
call "%~dp0register.cmd" unregister %*
exit /b %errorlevel%
