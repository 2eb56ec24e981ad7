@echo off
rem Registers the Calvex automation server: for all users when run as administrator, otherwise for
rem the current user.
rem
rem   register [user] [/q]     user: for the current user in any case; /q: do not wait for a key
rem   unregister [user] [/q]   takes the registration back
setlocal
set "here=%~dp0"
set "task=register"
set "users=all users"
set "quiet="
:next
if "%~1"=="" goto begin
if /i "%~1"=="unregister" set "task=unregister"
if /i "%~1"=="user" set "users=the current user"
if /i "%~1"=="/q" set "quiet=yes"
shift
goto next

:begin
rem One by one: "for" would expand the folder's name once more, and it may have a %.
if not exist "%here%64-bit\calvex.dll" goto incomplete
if not exist "%here%32-bit\calvex.dll" goto incomplete

rem All users' part of the registry is open to administrators only.
if not "%users%"=="all users" goto choose
reg add HKLM\Software\Classes\Calvex32.Probe /f >nul 2>&1
if errorlevel 1 set "users=the current user"
reg delete HKLM\Software\Classes\Calvex32.Probe /f >nul 2>&1

:choose
set "options=/s"
if "%task%"=="unregister" set "options=/s /u"
if "%users%"=="the current user" set "options=%options% /n /i:user"

rem A 32-bit Windows has neither of these folders; a 32-bit console on a 64-bit one sees Sysnative.
set "failed="
set "regsvr64="
set "regsvr32=%SystemRoot%\System32\regsvr32.exe"
if /i "%PROCESSOR_ARCHITECTURE%"=="x86" if not defined PROCESSOR_ARCHITEW6432 goto servers
set "regsvr64=%SystemRoot%\System32\regsvr32.exe"
if exist "%SystemRoot%\Sysnative\regsvr32.exe" set "regsvr64=%SystemRoot%\Sysnative\regsvr32.exe"
set "regsvr32=%SystemRoot%\SysWOW64\regsvr32.exe"
:servers
if defined regsvr64 call :server 64-bit "%regsvr64%"
if exist "%regsvr32%" call :server 32-bit "%regsvr32%"
if not exist "%regsvr32%" echo This Windows runs no 32-bit programs; the 32-bit server was left out.
if defined failed goto trouble
if "%task%"=="unregister" goto leftover

echo.
echo Calvex is ready for %users%. Keep this folder: programs load the server from here.
set "code=0"
goto end

:leftover
set "code=0"
if "%users%"=="all users" goto end
reg query HKLM\Software\Classes\Calvex32.ZvCalvex.3 >nul 2>&1
if errorlevel 1 goto end
echo.
echo Calvex is still registered for all users. To end that, run unregister.cmd as administrator.
set "code=1"
goto end

:incomplete
echo The servers are missing beside this file. Extract the whole ZIP into a folder of your own, then
echo run this file from there.
set "code=1"
goto end

:trouble
echo.
echo What to do:
echo - When the ZIP came from the internet: right-click it, Properties, Unblock; extract it again.
echo - Close the programs that use Calvex (Excel, for one) and run this file again.
echo - Let it stand on a local disk, not on a network drive.
echo - docs\windows.html tells more under "When it does not work".
set "code=1"
goto end

rem :server WORD-LENGTH REGSVR32
:server
"%~2" %options% "%here%%~1\calvex.dll"
set "result=%errorlevel%"
if "%result%"=="0" echo %~1 server: %task%ed for %users%.
if not "%result%"=="0" echo %~1 server: NOT %task%ed for %users%: regsvr32 answers %result%.
if not "%result%"=="0" set "failed=yes"
exit /b 0

:end
if not defined quiet pause
exit /b %code%
