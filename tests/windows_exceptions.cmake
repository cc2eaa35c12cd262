# The tests that do not run on Windows or under wine, each group with its reason and with what runs
# in its place. Files named *_posix_test.cpp are left out, too: links, pipes and devices in place of
# files, permissions, the mask, programs with set-user-ID. What this system has instead is tested in
# files named *_windows_test.cpp and windows_*_test.cpp.
set(windows_exceptions
  # Names that differ in case alone are one file here. WindowsSearch has tests of names in another
  # case: of directories, of bundles and of language files.
  XlateManagerOfDirectory.CapitalsComeFirst
  LangLoader.PassesOverAFileOfAnotherCase
  LanguageCache.AnswersAsTheFirstRequestWasSpelled
  Kxxlate.BundlesMarksTheSecondSpellingOfALocale
  */LanguagePrecedence.AnswersFromTheMostSpecificFile/CodesAreFoundInCapitals

  # A backslash ends a directory's name and is never a part of it. WindowsSearch has tests of roots
  # that end in one.
  */LogPlace.FollowsFromTheRoot/BackslashAtTheEnd

  # Symbolic links need a privilege of the user, and the compiler's runtime makes none. Files that
  # are gone by the time they are opened take their part in PropertiesBundle and PropertyLookup.
  PropertiesFile.LinkIsFollowed
  PropertiesFile.LinkToNothingIsReported
  XlateManagerOfDirectory.FileThatCannotBeOpenedIsRegistered
  XlateManagerOfDirectory.LinkToADirectoryIsADirectory
  LangLoader.DoesNotLookBesideWhereALinkLeads
  LangLoader.FollowsLinksToFiles
  LangLoader.PassesOverALinkThatLeadsNowhere

  # Pipes have no place in a directory, and devices have names of their own: FilesOnWindows has tests
  # of both, WindowsSearch of devices.
  PropertiesFile.PipeCannotBeOpenedAndIsNotWaitedFor
  LangLoader.DoesNotReadADevice
  LangLoader.DoesNotWaitForAPipe

  # Asks the kernel for the files that are open. FilesOnWindows has a test that asks this system.
  LangLoader.ClosesItsFiles

  # Permissions of files do not bind the user under wine. FilesOnWindows has a test of a file that
  # another program keeps to itself.
  LangLoader.PassesOverAFileThatMayNotBeRead
  LangLoader.PassesOverAFileInADirectoryThatMayNotBeEntered

  # The administrator's locale is not in the environment, and no test can set the system's: see
  # KxxlateOnWindows and LocaleFromSystemName. What follows from it is the same code on every system.
  Kxxlate.FormatTakesTheAdministratorsLocaleWhenAsked
  AdminLocale.*
  */AdminLocale.*
  */AdminLocaleOfAMessage.*
  Format.TakesTheAdministratorsLocaleOnceAndForAll
  Format.KeepsTheLocaleWhenTheAdministratorHasNone
  FormattedMessage.AdminLocale*

  # A command line is UTF-16 and ends at 32,767 characters. TranslationLog and StandardErrorSink
  # have tests of such bytes and lines.
  */AbsentKey.IsOneLineOfTheLog/NotUtf8
  */AbsentKey.IsOneLineOfTheLog/Long

  # The host sees the end of a translator by replacing operator delete, which here each module has
  # for itself. RealKxXlate has tests of the references within one module, and what takes them is the
  # same code on every system.
  FormattedMessage.EachResolutionLeavesAReference*
  FormattedMessage.EachMessageLeavesAReference
  FormattedMessage.WithoutALookupNoReferenceIsTaken

  # Cut again and again, a path of this system ends as its drive, and only nothing makes the search
  # for "Language" begin. What ends as nothing is a path on another machine, which wine has none of:
  # ResourceDirectorySearch has tests of both.
  LanguageDirectoryNearTheTop.IsNamed*
  LanguageDirectoryNearTheTop.IsNotNamedLanguageInSmallLetters
  LanguageDirectoryNearTheTop.IsNotMovedByAReplacement
  LanguageDirectoryNearTheTop.WhoeverWritesFirstDecidesWhereTheLogIs

  # A path that begins with two separators names another machine: see LangLoaderOnWindows.
  LanguageDirectory.IsTheTopOfTheFileSystemWithoutResources
)
