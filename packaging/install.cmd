@echo off
rem Registers the controls from where this file lies:  install [machine or user] [x86 or x64]
rem Without words: for the machine, every component that this Windows can run. uninstall.cmd takes it back.
setlocal
set "here=%~dp0"
set "me=install"
set "unregister="
set "done=registered"
set "scope=machine"
set "only="
set "failed="
set "clicked="
if "%~1"=="" set "clicked=yes"
if /i not "%~1"=="/remove" goto words
set "me=uninstall"
set "unregister=/u"
set "done=not registered any more"
shift
if "%~1"=="" set "clicked=yes"

:words
if "%~1"=="" goto rights
if /i "%~1"=="machine" set "scope=machine" & goto next
if /i "%~1"=="user" set "scope=user" & goto next
if /i "%~1"=="x86" set "only=x86" & goto next
if /i "%~1"=="x64" set "only=x64" & goto next
echo %me%: what is "%~1"? Type: %me% machine  or: %me% user  and behind it, for one component alone, x86 or x64
exit /b 2
:next
shift
goto words

:rights
set "for=for this user"
set "alone=/n /i:user"
if "%scope%"=="user" goto system
set "for=for the machine"
set "alone="
rem What is tried is what is needed. The component itself would fall back to the user without a word.
"%SystemRoot%\System32\reg.exe" add "HKLM\Software\Classes" /v Quillet.Rights /d asked /f >nul 2>&1
if errorlevel 1 goto norights
"%SystemRoot%\System32\reg.exe" delete "HKLM\Software\Classes" /v Quillet.Rights /f >nul 2>&1

:system
rem A 32-bit prompt on a 64-bit Windows knows the other kind's tools by another name.
set "kind=%PROCESSOR_ARCHITECTURE%"
set "native=%SystemRoot%\System32\regsvr32.exe"
if defined PROCESSOR_ARCHITEW6432 set "kind=%PROCESSOR_ARCHITEW6432%"
if defined PROCESSOR_ARCHITEW6432 set "native=%SystemRoot%\Sysnative\regsvr32.exe"
set "wow=%SystemRoot%\SysWOW64\regsvr32.exe"
if /i "%kind%"=="x86" set "wow=%native%"
if "%only%"=="x64" goto x64
call :one x86 32-bit "%wow%"
if "%only%"=="x86" goto end
if /i not "%kind%"=="AMD64" goto end
:x64
if /i not "%kind%"=="AMD64" goto nox64
call :one x64 64-bit "%native%"
goto end

:one
set "file=%here%%1\quilbt.ocx"
if not exist "%file%" goto missing
"%~3" /s %unregister% %alone% "%file%"
if errorlevel 1 goto refused
echo %me%: the %2 controls are %done% %for%
call :isfree "%file%" 2>nul
if errorlevel 1 echo %me%: a running program still uses %1\quilbt.ocx, or it is write-protected; end the program before you replace or delete the file
exit /b 0
:isfree
rem A file that a program has loaded cannot be opened for writing. This writes nothing.
echo off >>"%~1" && exit /b 0
exit /b 1
:missing
echo %me%: %1\quilbt.ocx is not there; unpack the whole archive and start this file in the unpacked folder
set "failed=yes"
exit /b 1
:refused
echo %me%: regsvr32 refused %1\quilbt.ocx with code %errorlevel%; start "%~3" with it to see why
set "failed=yes"
exit /b 1

:norights
echo %me%: this needs the rights of an administrator: start it with "Run as administrator", or type: %me% user
set "failed=yes"
goto end
:nox64
echo %me%: the 64-bit controls need a 64-bit Windows on an x64 processor, and this one is %kind%; type: %me% %scope% x86
set "failed=yes"

:end
rem Started by a double click, the window would close before its words are read.
if defined clicked pause
if defined failed exit /b 1
exit /b 0
