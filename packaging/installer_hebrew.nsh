; The installer's own texts in Hebrew, in the plural that addresses everybody. The program's Latin name is in titles
; only: amid a Hebrew sentence it would tear it apart wherever a control does not know the direction. Paths stand between
; marks that keep them from left to right (U+202A, U+202C), since folders may have Hebrew names.

; Buttons
LangString Back ${LANG_HEBREW} "< ה&קודם"
LangString Next ${LANG_HEBREW} "ה&בא >"
LangString Cancel ${LANG_HEBREW} "ביטול"
LangString Close ${LANG_HEBREW} "&סגירה"
LangString Install ${LANG_HEBREW} "ה&תקנה"
LangString Uninstall ${LANG_HEBREW} "ה&סרה"
LangString Browse ${LANG_HEBREW} "&עיון..."
LangString Finish ${LANG_HEBREW} "&סיום"

; Installing
LangString WelcomeTitle ${LANG_HEBREW} "ברוכים הבאים להתקנת ${NAME_IN_TEXTS}"
LangString WelcomeText ${LANG_HEBREW} "גרסה ${VERSION} תותקן במחשב עבורכם בלבד; אין צורך בהרשאות מנהל.$\r$\n$\r$\nאם מותקנת גרסה קודמת, היא תוחלף, וההגדרות שלכם יישמרו.$\r$\n$\r$\nאם התוכנה פועלת כעת, סגרו אותה ולחצו על 'הבא'."
LangString FolderTitle ${LANG_HEBREW} "בחירת תיקייה"
LangString FolderSubtitle ${LANG_HEBREW} "היכן להתקין את התוכנה"
LangString FolderText ${LANG_HEBREW} "התוכנה תותקן בתיקייה שלהלן. כדי להתקין בתיקייה אחרת, לחצו על 'עיון'. ההגדרות נשמרות בתיקייה נפרדת, לא כאן."
LangString FolderLabel ${LANG_HEBREW} "תיקייה"
LangString FolderBrowse ${LANG_HEBREW} "תיקייה עבור התוכנה:"
LangString SpaceRequired ${LANG_HEBREW} "נפח דרוש: "
LangString SpaceAvailable ${LANG_HEBREW} "נפח פנוי: "
LangString InstallingTitle ${LANG_HEBREW} "מתקין"
LangString InstallingSubtitle ${LANG_HEBREW} "נא להמתין בזמן התקנת התוכנה"
LangString InstalledTitle ${LANG_HEBREW} "ההתקנה הושלמה"
LangString InstalledSubtitle ${LANG_HEBREW} "התוכנה הותקנה בהצלחה"
LangString NotInstalledTitle ${LANG_HEBREW} "ההתקנה לא הושלמה"
LangString NotInstalledSubtitle ${LANG_HEBREW} "ההתקנה הופסקה לפני שהושלמה"
LangString FinishTitle ${LANG_HEBREW} "ההתקנה הושלמה"
LangString FinishText ${LANG_HEBREW} "התוכנה הותקנה במחשב. תמצאו אותה בתפריט 'התחל'."
LangString FinishRun ${LANG_HEBREW} "ה&פעלת התוכנה כעת"

; Uninstalling
LangString RemoveTitle ${LANG_HEBREW} "הסרת התוכנה"
LangString RemoveSubtitle ${LANG_HEBREW} "הסרת התוכנה מהמחשב"
LangString RemoveText ${LANG_HEBREW} "התוכנה תוסר מתיקייה זו. קבצים משלכם שנמצאים בה יישארו."
LangString RemoveSettings ${LANG_HEBREW} "למחוק &גם את ההגדרות, המקומות והאנשים שלי:"
LangString RemovingTitle ${LANG_HEBREW} "מסיר"
LangString RemovingSubtitle ${LANG_HEBREW} "נא להמתין בזמן הסרת התוכנה"
LangString RemovedTitle ${LANG_HEBREW} "ההסרה הושלמה"
LangString RemovedSubtitle ${LANG_HEBREW} "התוכנה הוסרה מהמחשב"
LangString NotRemovedTitle ${LANG_HEBREW} "ההסרה לא הושלמה"
LangString NotRemovedSubtitle ${LANG_HEBREW} "התוכנה לא הוסרה במלואה"

; Boxes
LangString AlreadyRunning ${LANG_HEBREW} "התקנה או הסרה אחרת כבר פועלת. יש לסיים אותה תחילה."
LangString InUse ${LANG_HEBREW} "התוכנה פועלת כעת, או שתוכנה אחרת משתמשת באחד מקבציה:$\r$\n$\r$\n${U+202A}$HeldFile${U+202C} $\r$\n$\r$\nדבר לא השתנה. שמרו את עבודתכם, סגרו את התוכנה ונסו שוב."
LangString OwnFolder ${LANG_HEBREW} "בתיקייה שבחרתם יש קבצים אחרים. התוכנה תותקן בתיקייה משלה בתוכה:$\r$\n$\r$\n${U+202A}$INSTDIR${U+202C} "
LangString CannotUseFolder ${LANG_HEBREW} "אין אפשרות לכתוב בתיקייה זו:$\r$\n$\r$\n${U+202A}$INSTDIR${U+202C} $\r$\n$\r$\nבחרו תיקייה אחרת, אחת משלכם."
LangString CannotWrite ${LANG_HEBREW} "אין אפשרות לכתוב את הקובץ:$\r$\n$\r$\n${U+202A}$UnwrittenFile${U+202C} $\r$\n$\r$\nבדקו אם הדיסק מלא או אם תוכנה אחרת משתמשת בקובץ, ונסו שוב."
LangString OlderVersion ${LANG_HEBREW} "מותקנת גרסה $InstalledVersion, החדשה מגרסה זו (${VERSION}). להתקין את הגרסה הישנה במקומה?"
LangString Moves ${LANG_HEBREW} "התוכנה מותקנת בתיקייה אחרת:$\r$\n$\r$\n${U+202A}$PreviousFolder${U+202C} $\r$\n$\r$\nהיא תוסר משם; קבצים משלכם יישארו. להמשיך?"
LangString FontInUse ${LANG_HEBREW} "גופן התצוגה העברי נמצא בשימוש ולא ניתן היה להחליפו. מעבדי תמלילים ימשיכו להשתמש בגופן הקיים. כדי לקבל את החדש, התנתקו מהמחשב, היכנסו שוב והפעילו את ההתקנה פעם נוספת."
LangString NotInstalledHere ${LANG_HEBREW} "התוכנה אינה מותקנת בתיקייה זו:$\r$\n$\r$\n${U+202A}$INSTDIR${U+202C} "
LangString NotAllRemoved ${LANG_HEBREW} "לא ניתן היה להסיר חלק מהקבצים, ובהם:$\r$\n$\r$\n${U+202A}$LeftFile${U+202C} $\r$\n$\r$\nהסירו את התוכנה שוב כאשר אף תוכנה אינה משתמשת בהם."
