; The installer's own texts in Hebrew, in the plural that addresses everybody. Every paragraph
; stands between marks that say that it goes from right to left (U+202B, U+202C), since not every control knows it of
; itself; paths between marks that they go from left to right (U+202A).

; Buttons
LangString Back ${LANG_HEBREW} "${U+202B}< ה&קודם${U+202C}"
LangString Next ${LANG_HEBREW} "${U+202B}ה&בא >${U+202C}"
LangString Cancel ${LANG_HEBREW} "${U+202B}ביטול${U+202C}"
LangString Close ${LANG_HEBREW} "${U+202B}&סגירה${U+202C}"
LangString Install ${LANG_HEBREW} "${U+202B}הת&קנה${U+202C}"
LangString Uninstall ${LANG_HEBREW} "${U+202B}ה&סרה${U+202C}"
LangString Browse ${LANG_HEBREW} "${U+202B}&עיון...${U+202C}"
LangString Finish ${LANG_HEBREW} "${U+202B}&סיום${U+202C}"

; Installing
LangString WelcomeTitle ${LANG_HEBREW} "${U+202B}ברוכים הבאים להתקנת ${NAME_IN_TEXTS}${U+202C}"
LangString WelcomeText ${LANG_HEBREW} "${U+202B}ההתקנה תתקין את ${NAME_IN_TEXTS} ${VERSION} במחשב, עבורכם בלבד; אין צורך בהרשאות מנהל.${U+202C}$\r$\n$\r$\n${U+202B}אם מותקנת גרסה קודמת, היא תוחלף, וההגדרות שלכם יישמרו.${U+202C}$\r$\n$\r$\n${U+202B}אם ${NAME_IN_TEXTS} פועלת כעת, סגרו אותה ולחצו על 'הבא'.${U+202C}"
LangString FolderTitle ${LANG_HEBREW} "${U+202B}בחירת תיקייה${U+202C}"
LangString FolderSubtitle ${LANG_HEBREW} "${U+202B}היכן להתקין את ${NAME_IN_TEXTS}.${U+202C}"
LangString FolderText ${LANG_HEBREW} "${U+202B}${NAME_IN_TEXTS} תותקן בתיקייה שלהלן. כדי להתקין בתיקייה אחרת, לחצו על 'עיון'. ההגדרות נשמרות בתיקייה נפרדת, לא כאן.${U+202C}"
LangString FolderLabel ${LANG_HEBREW} "${U+202B}תיקייה${U+202C}"
LangString FolderBrowse ${LANG_HEBREW} "${U+202B}תיקייה עבור ${NAME_IN_TEXTS}:${U+202C}"
LangString SpaceRequired ${LANG_HEBREW} "${U+202B}נפח דרוש: ${U+202C}"
LangString SpaceAvailable ${LANG_HEBREW} "${U+202B}נפח פנוי: ${U+202C}"
LangString InstallingTitle ${LANG_HEBREW} "${U+202B}מתקין${U+202C}"
LangString InstallingSubtitle ${LANG_HEBREW} "${U+202B}נא להמתין בזמן התקנת ${NAME_IN_TEXTS}.${U+202C}"
LangString InstalledTitle ${LANG_HEBREW} "${U+202B}ההתקנה הושלמה${U+202C}"
LangString InstalledSubtitle ${LANG_HEBREW} "${U+202B}${NAME_IN_TEXTS} הותקנה בהצלחה.${U+202C}"
LangString NotInstalledTitle ${LANG_HEBREW} "${U+202B}ההתקנה לא הושלמה${U+202C}"
LangString NotInstalledSubtitle ${LANG_HEBREW} "${U+202B}ההתקנה הופסקה לפני שהושלמה.${U+202C}"
LangString FinishTitle ${LANG_HEBREW} "${U+202B}${NAME_IN_TEXTS} הותקנה${U+202C}"
LangString FinishText ${LANG_HEBREW} "${U+202B}${NAME_IN_TEXTS} ${VERSION} הותקנה במחשב. תמצאו אותה בתפריט 'התחל'.${U+202C}"
LangString FinishRun ${LANG_HEBREW} "${U+202B}ה&פעלת ${NAME_IN_TEXTS} כעת${U+202C}"

; Uninstalling
LangString RemoveTitle ${LANG_HEBREW} "${U+202B}הסרת ${NAME_IN_TEXTS}${U+202C}"
LangString RemoveSubtitle ${LANG_HEBREW} "${U+202B}הסרת ${NAME_IN_TEXTS} מהמחשב.${U+202C}"
LangString RemoveText ${LANG_HEBREW} "${U+202B}${NAME_IN_TEXTS} תוסר מתיקייה זו. קבצים משלכם שנמצאים בה יישארו.${U+202C}"
LangString RemoveSettings ${LANG_HEBREW} "${U+202B}למחוק &גם את ההגדרות, המקומות והאנשים שלי:${U+202C}"
LangString RemovingTitle ${LANG_HEBREW} "${U+202B}מסיר${U+202C}"
LangString RemovingSubtitle ${LANG_HEBREW} "${U+202B}נא להמתין בזמן הסרת ${NAME_IN_TEXTS}.${U+202C}"
LangString RemovedTitle ${LANG_HEBREW} "${U+202B}ההסרה הושלמה${U+202C}"
LangString RemovedSubtitle ${LANG_HEBREW} "${U+202B}${NAME_IN_TEXTS} הוסרה מהמחשב.${U+202C}"
LangString NotRemovedTitle ${LANG_HEBREW} "${U+202B}ההסרה לא הושלמה${U+202C}"
LangString NotRemovedSubtitle ${LANG_HEBREW} "${U+202B}${NAME_IN_TEXTS} לא הוסרה.${U+202C}"

; Boxes
LangString AlreadyRunning ${LANG_HEBREW} "${U+202B}ההתקנה או ההסרה של ${NAME_IN_TEXTS} כבר פועלת. יש לסיים אותה תחילה.${U+202C}"
LangString InUse ${LANG_HEBREW} "${U+202B}${NAME_IN_TEXTS} פועלת כעת, או שתוכנה אחרת משתמשת באחד מקבציה:${U+202C}$\r$\n$\r$\n${U+202A}$HeldFile${U+202C}$\r$\n$\r$\n${U+202B}דבר לא השתנה. שמרו את עבודתכם, סגרו את התוכנה ונסו שוב.${U+202C}"
LangString CannotUseFolder ${LANG_HEBREW} "${U+202B}אין אפשרות לכתוב בתיקייה זו:${U+202C}$\r$\n$\r$\n${U+202A}$INSTDIR${U+202C}$\r$\n$\r$\n${U+202B}בחרו תיקייה אחרת, אחת משלכם.${U+202C}"
LangString CannotWrite ${LANG_HEBREW} "${U+202B}אין אפשרות לכתוב את הקובץ:${U+202C}$\r$\n$\r$\n${U+202A}$UnwrittenFile${U+202C}$\r$\n$\r$\n${U+202B}בדקו אם הדיסק מלא או אם תוכנה אחרת משתמשת בקובץ, ונסו שוב.${U+202C}"
LangString OlderVersion ${LANG_HEBREW} "${U+202B}מותקנת גרסה $InstalledVersion של ${NAME_IN_TEXTS}, החדשה מגרסה זו (${VERSION}). להתקין את הגרסה הישנה במקומה?${U+202C}"
LangString Moves ${LANG_HEBREW} "${U+202B}${NAME_IN_TEXTS} מותקנת בתיקייה אחרת:${U+202C}$\r$\n$\r$\n${U+202A}$PreviousFolder${U+202C}$\r$\n$\r$\n${U+202B}היא תוסר משם; קבצים משלכם יישארו. להמשיך?${U+202C}"
LangString FontInUse ${LANG_HEBREW} "${U+202B}גופן התצוגה העברי נמצא בשימוש ולא ניתן היה להחליפו. מעבדי תמלילים ימשיכו להשתמש בגופן הקיים. כדי לקבל את החדש, צאו מ-Windows, היכנסו שוב והפעילו את ההתקנה פעם נוספת.${U+202C}"
LangString NotInstalledHere ${LANG_HEBREW} "${U+202B}${NAME_IN_TEXTS} אינה מותקנת בתיקייה זו:${U+202C}$\r$\n$\r$\n${U+202A}$INSTDIR${U+202C}"
LangString NotAllRemoved ${LANG_HEBREW} "${U+202B}לא ניתן היה להסיר חלק מהקבצים מתיקייה זו:${U+202C}$\r$\n$\r$\n${U+202A}$INSTDIR${U+202C}$\r$\n$\r$\n${U+202B}מחקו אותם בעצמכם כאשר אף תוכנה אינה משתמשת בהם.${U+202C}"
